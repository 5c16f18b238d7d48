#ifndef ZUM_OPERATORS_DESCLOGICALCHANNEL_H
#define ZUM_OPERATORS_DESCLOGICALCHANNEL_H

#include <list>
#include <map>
#include <set>

#include <zum-platform/Codes.h>

#include "../core/BaseDesc.h"
#include "LCNEntry.h"

// How the rest of the system reads the channel numbers of every operator.
class ZUM_EXPORT IDescLogicalChannel {
public:
    virtual ~IDescLogicalChannel() = default;
    virtual bool GetAvailableRegions(std::list<unsigned short>& regions) const = 0;
    virtual unsigned int NumOfServices(unsigned short region) const = 0;
    // 0xFFFF00 as `country` stands for any country.
    virtual bool CheckServiceId(unsigned short serviceId, ECountryCode country) const = 0;
    // 0xFFFFFFFF when the service has no number here.
    virtual unsigned int LogicalChannelNumber(unsigned short serviceId) const = 0;
    virtual void GetLogicalChannelNumberList(unsigned short serviceId, std::list<unsigned short>& numbers) const = 0;
    virtual bool FreesatServiceId(unsigned short serviceId, unsigned short& freesatId) const = 0;
    virtual bool PolsatServiceId(unsigned short serviceId, std::list<unsigned short>& polsatIds) const = 0;
    virtual bool CustomisableServiceFlag(unsigned short serviceId, unsigned short region) const = 0;
    virtual bool VisibleServiceFlag(unsigned short serviceId, unsigned short region) const = 0;
    virtual bool NumericSelectionFlag(unsigned short serviceId, unsigned short region) const = 0;
    // A walk over the entries; one reader at a time (Fork gives another its own).
    virtual const _TTDescLCN* First(unsigned short region) = 0;
    virtual const _TTDescLCN* Next(unsigned short region) = 0;
    virtual bool ServiceIDList(std::set<unsigned short>& serviceIds) const = 0;
    virtual bool GetDPIds(unsigned short serviceId, unsigned short& first, unsigned short& second) const = 0;
};

// Version 1: a loop of four-byte entries whose bit layout follows the
// private data specifier it was created under.
class ZUM_EXPORT TCDescLogicalChannel : public TCBaseDesc, public IDescLogicalChannel {
public:
    using EntryMap = std::multimap<unsigned short, _TTDescLCN>;

    TCDescLogicalChannel(int tag, unsigned int privateDataSpecifier);
    ~TCDescLogicalChannel() override;

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

    // The specifier the object was made under (inline: no operation of the library's boundary).
    unsigned int PrivateDataSpecifier() const { return m_privateDataSpecifier; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
    // For a subclass that decodes entries of its own: goes behind the
    // entries of the same service id.
    void t_AddEntry(const _TTDescLCN& entry);
    // The entries a subclass added, ascending by service id.
    const TCLCNEntryList& t_Entries() const { return m_entries; }

    unsigned int m_privateDataSpecifier;

private:
    // The entries of the raw copy are read where they stand; the walk, which
    // hands them out by pointer, first reads them into m_entries.
    int m_RawCount() const;
    _TTDescLCN m_RawEntry(int index) const;
    // The first entry of the service, in the order of the descriptor.
    bool m_First(unsigned short serviceId, _TTDescLCN& entry) const;

    int m_rawEntries = 0;
    TCLCNEntryList m_entries;
    // The walk's next entry; past the end before First and after DeleteAll.
    std::size_t m_readPosition = static_cast<std::size_t>(-1);
};

#endif
