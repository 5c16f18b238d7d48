#ifndef ZUM_DVB_DESCT2SYSTEMDELIVERY_H
#define ZUM_DVB_DESCT2SYSTEMDELIVERY_H

#include <map>
#include <vector>

#include "../core/DescExtension.h"

class TCByteReader;

// T2_delivery_system_descriptor (extension 0x04, tag 0x7F04). The cell maps
// grow over decodes of one object, so they outlive the raw copy that fed them
// and are held decoded; frequencies are kept as sent.
class ZUM_EXPORT TCDescT2SystemDelivery : public TCDescExtension {
public:
    TCDescT2SystemDelivery();
    ~TCDescT2SystemDelivery() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char PlpId() const { return m_plpId; }
    unsigned short T2SystemId() const { return m_t2SystemId; }
    unsigned char SisoMiso() const { return m_sisoMiso; }
    // 0 8 MHz, 1 7 MHz, 2 6 MHz, 3 5 MHz, 4 10 MHz, 5 1.712 MHz, -1 other.
    int Bandwidth() const { return m_bandwidth; }
    unsigned char GuardInterval() const { return m_guardInterval; }
    unsigned char TransmissionMode() const { return m_transmissionMode; }
    unsigned char OtherFrequencyFlag() const { return m_otherFrequencyFlag; }
    unsigned char TfsFlag() const { return m_tfsFlag; }

    // Cell id to its centre frequencies.
    void GetCellIdMap(std::map<unsigned short, std::vector<unsigned int>>& map) const;
    // Cell id to cell_id_extension to transposer frequency.
    void GetSubCellIdMap(std::map<unsigned short, std::map<unsigned char, unsigned int>>& map) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    void m_ParseCells(TCByteReader& reader);

    unsigned char m_plpId = 0;
    unsigned short m_t2SystemId = 0;
    unsigned char m_sisoMiso = 0;
    int m_bandwidth = 0;
    unsigned char m_guardInterval = 0;
    unsigned char m_transmissionMode = 0;
    unsigned char m_otherFrequencyFlag = 0;
    unsigned char m_tfsFlag = 0;
    std::map<unsigned short, std::vector<unsigned int>> m_cellIdMap;
    std::map<unsigned short, std::map<unsigned char, unsigned int>> m_subCellIdMap;
};

#endif
