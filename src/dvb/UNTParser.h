#ifndef ZUM_DVB_UNTPARSER_H
#define ZUM_DVB_UNTPARSER_H

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One entry of a platform loop: its target descriptors, then its operational
// descriptors, in one container in that order.
class ZUM_EXPORT TCUNTElementary {
public:
    explicit TCUNTElementary(const ZUMHandle& handle);

    // Reads the entry at `data`, no further than `remaining` bytes; returns both loop lengths plus 4.
    int Parse(const unsigned char* data, int remaining);

    unsigned int TargetLoopLength() const { return m_targetLoopLength; }
    unsigned int OperationalLoopLength() const { return m_operationalLoopLength; }
    const TCDescriptorHash& Descriptors() const { return m_descriptors; }
    // The first this many descriptors by arrival are the target descriptors.
    int NumOfTargetDescriptors() const { return m_targetCount; }

private:
    unsigned int m_targetLoopLength = 0;
    unsigned int m_operationalLoopLength = 0;
    int m_targetCount = 0;
    TCDescriptorHash m_descriptors;
    ZUMHandle m_handle;
};

// One compatibility descriptor, kept as raw bytes, with its platform loop.
class ZUM_EXPORT TCUNTItem {
public:
    explicit TCUNTItem(const ZUMHandle& handle);

    // Reads the item at `data`, no further than `remaining` bytes; returns both lengths plus 4.
    int Parse(const unsigned char* data, int remaining);
    void DeleteAll();

    int NumOfElementary() const { return static_cast<int>(m_elementaries.size()); }
    TCUNTElementary* UNTElementary(unsigned int index) const;
    // Copies the compatibility descriptor, `size` lowered to the bytes held when
    // they are fewer; false for a null buffer, a size of 0 or no bytes held.
    bool GetCompatibilityDescriptor(unsigned char* buffer, unsigned short& size) const;
    unsigned short CompatibilityDescriptorLength() const { return m_compatibilityLength; }
    unsigned short PlatformLoopLength() const { return m_platformLoopLength; }

private:
    ZUMHandle m_handle;
    std::vector<std::unique_ptr<TCUNTElementary>> m_elementaries;
    std::vector<unsigned char> m_compatibility;
    unsigned short m_compatibilityLength = 0;
    unsigned short m_platformLoopLength = 0;
};

// The update notification table of one OUI: common descriptors and items.
class ZUM_EXPORT TCUNTInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCUNTInstance(const ZUMHandle& handle);
    ~TCUNTInstance() override;

    // `body` starts at the processing order, behind the OUI.
    bool Parse(const unsigned char* body, int length, unsigned char actionType, unsigned char ouiHash,
               unsigned int oui, char version, int section, int last, unsigned int crc);
    void DeleteAll() override;

    int NumOfItem() const { return static_cast<int>(m_items.size()); }
    TCUNTItem* UNTItem(unsigned int index) const;
    unsigned char ActionType() const { return m_actionType; }
    unsigned char OUIHash() const { return m_ouiHash; }
    unsigned int OUI() const { return m_oui; }
    unsigned char ProcessingOrder() const { return m_processingOrder; }
    unsigned short CommonDescriptorsLength() const { return m_commonDescriptorsLength; }

private:
    void m_Parse(const unsigned char* data, int length);

    ZUMHandle m_handle;
    unsigned char m_actionType = 1;
    unsigned char m_ouiHash = 0;
    unsigned int m_oui = 0;
    unsigned char m_processingOrder = 0;
    unsigned short m_commonDescriptorsLength = 0;
    std::vector<std::unique_ptr<TCUNTItem>> m_items;
};

// Update notification table (0x4B): software updates per manufacturer, one
// instance per OUI.
class ZUM_EXPORT TCUNTParser : public TCSectionParser {
public:
    explicit TCUNTParser(const ZUMHandle& handle);
    ~TCUNTParser() override;

    int NumOfUNTIntance() const { return static_cast<int>(m_instances.size()); }
    TCUNTInstance* UNTInstance(int oui) const;
    // In ascending order of OUI; null out of range.
    TCUNTInstance* UNTInstanceOfIndex(unsigned int index) const;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::map<int, std::unique_ptr<TCUNTInstance>> m_instances;
    unsigned char m_lastActionType = 1;
    unsigned char m_lastOUIHash = 0;
    unsigned int m_lastOUI = 0;
};

#endif
