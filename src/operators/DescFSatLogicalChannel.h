#ifndef ZUM_OPERATORS_DESCFSATLOGICALCHANNEL_H
#define ZUM_OPERATORS_DESCFSATLOGICALCHANNEL_H

#include <cstddef>
#include <list>
#include <set>
#include <vector>

#include "DescLogicalChannel.h"

// Freesat's channel numbers (0xD3): the same service numbered per region,
// and a Freesat-wide id for each service. The region is a real argument.
class ZUM_EXPORT TCDescFSatLogicalChannel : public TCBaseDesc, public IDescLogicalChannel {
public:
    static constexpr unsigned int s_invalid_lcn = 0xFFFFFFFF;
    static constexpr unsigned char s_default_visible_flag = 1;

    TCDescFSatLogicalChannel();
    ~TCDescFSatLogicalChannel() override;

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

    // Every entry of the service in the region, appended in descriptor order.
    void LogicalChannelNumber(unsigned short serviceId, unsigned short region, std::list<_TTDescLCN>& entries) const;
    // A walk over all regions, ascending; a pointer stays valid as long as the entries.
    const _TTDescLCN* FirstAllRegions();
    const _TTDescLCN* NextAllRegions();
    // Decodes the other descriptor's body into this one, beside what it holds.
    void Merge(TCDescFSatLogicalChannel& other);

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTFreesatId {
        unsigned short serviceId;
        unsigned short freesatId;
    };
    using Range = std::pair<std::size_t, std::size_t>;

    int m_Decode(const unsigned char* payload, int length);
    Range m_Region(unsigned short region) const;
    // The first (or last) entry of the service in the region; null if none.
    const _TTDescLCN* m_Find(unsigned short serviceId, unsigned short region, bool last) const;

    // Entries ascending by region, each region's in the order of the descriptor.
    std::vector<_TTDescLCN> m_entries;
    // One per service, the latest head of the service winning.
    std::vector<TTFreesatId> m_freesatIds;
    std::size_t m_readPosition = 0;
    std::size_t m_allRegionsPosition = 0;
    unsigned short m_currentRegion = 0xFFFF;
};

#endif
