#ifndef ZUM_OPERATORS_DESCLOGICALCHANNELV2_H
#define ZUM_OPERATORS_DESCLOGICALCHANNELV2_H

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "DescLogicalChannel.h"

// Version 2 carries several channel lists; the reading operations answer for
// the selected one.
class ZUM_EXPORT IDescLogicalChannelV2 : public virtual IDescLogicalChannel {
public:
    // Replaces `lists` with the names of all lists, keyed by list id.
    virtual void GetChannelLists(std::map<unsigned int, std::string>& lists) const = 0;
    virtual bool SelectChannelList(unsigned int listId) = 0;
    // The selected list's country and id; false (country 0, id -1) with none selected.
    virtual bool GetChannelListCountryId(ECountryCode& country, int& listId) const = 0;
};

// Tag 0x87: channel lists with a number, a name and a country each. Parsing
// selects the list of the receiver's country, the lowest id among equals.
class ZUM_EXPORT TCDescLogicalChannelV2 : public TCBaseDesc, public IDescLogicalChannelV2 {
public:
    using EntryMap = TCDescLogicalChannel::EntryMap;

    static constexpr unsigned int s_invalid_lcn = 0xFFFFFFFF;
    static constexpr unsigned char s_default_visible_flag = 1;
    static constexpr unsigned int s_invalid_channel_id = 0xFFFFFFFF;

    explicit TCDescLogicalChannelV2(const ZUMHandle& handle);
    ~TCDescLogicalChannelV2() override;

    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    bool GetAvailableRegions(std::list<unsigned short>& regions) const override;
    unsigned int NumOfServices(unsigned short region) const override;
    bool CheckServiceId(unsigned short serviceId, ECountryCode country) const override;
    unsigned int LogicalChannelNumber(unsigned short serviceId) const override;
    void GetLogicalChannelNumberList(unsigned short serviceId, std::list<unsigned short>& numbers) const override;
    bool FreesatServiceId(unsigned short serviceId, unsigned short& freesatId) const override;
    bool PolsatServiceId(unsigned short serviceId, std::list<unsigned short>& polsatIds) const override;
    bool CustomisableServiceFlag(unsigned short serviceId, unsigned short region) const override;
    bool VisibleServiceFlag(unsigned short serviceId, unsigned short region) const override;
    bool NumericSelectionFlag(unsigned short serviceId, unsigned short region) const override;
    const _TTDescLCN* First(unsigned short region) override;
    const _TTDescLCN* Next(unsigned short region) override;
    bool ServiceIDList(std::set<unsigned short>& serviceIds) const override;
    bool GetDPIds(unsigned short serviceId, unsigned short& first, unsigned short& second) const override;

    void GetChannelLists(std::map<unsigned int, std::string>& lists) const override;
    bool SelectChannelList(unsigned int listId) override;
    bool GetChannelListCountryId(ECountryCode& country, int& listId) const override;

    // Replaces `entries` with a copy of that list's; an unknown list leaves it.
    void GetLogicalChannelMapForChList(unsigned int listId, EntryMap& entries) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // A list as the descriptor sent it. Its country outlives DeleteAll; its
    // name and entries are held from the parse that read it to DeleteAll.
    struct TTList {
        unsigned int id = 0;
        ECountryCode country = 0;
        bool held = false;
        std::string name;
        TCLCNEntryList entries;
    };

    TTList& m_ListOf(unsigned int listId);
    const TTList* m_Find(unsigned int listId) const;
    // The list of that id while it is held; null otherwise.
    const TCLCNEntryList* m_HeldEntries(unsigned int listId) const;
    const TCLCNEntryList* m_SelectedEntries() const;
    ECountryCode m_CountryOf(unsigned int listId) const;
    void m_UpdateSelection(unsigned int listId, ECountryCode receiverCountry);

    // In the order the lists first came; a handful per descriptor.
    std::vector<TTList> m_lists;
    // The walk keeps the list it started on, even if another is selected meanwhile.
    bool m_walking = false;
    unsigned int m_walkList = 0;
    std::size_t m_readPosition = 0;
    unsigned int m_selectedList = s_invalid_channel_id;
    ZUMHandle m_handle;
};

#endif
