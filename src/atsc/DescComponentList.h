#ifndef ZUM_ATSC_DESCCOMPONENTLIST_H
#define ZUM_ATSC_DESCCOMPONENTLIST_H

#include <vector>

#include "../core/BaseDesc.h"

// Stereoscopic properties of a component, from its detail bytes.
struct TTStreoScopicVideoInfo {
    unsigned char baseVideoFlag = 0;
    unsigned char leftViewFlag = 0;
    unsigned char usableAs2D = 0;
    unsigned char horizontalUpsamplingFactor = 0;
    unsigned char verticalUpsamplingFactor = 0;
};

// AVC properties of a component: the fields of its two detail bytes, as they come.
struct TTAVCVideoInfo {
    unsigned short value1 = 0;
    unsigned short value2 = 0;
    unsigned short value3 = 0;
};

// component_list_descriptor (0xBB): the components of a service, each with
// a stream type, a format identifier and detail bytes.
class ZUM_EXPORT TCDescComponentList : public TCBaseDesc {
public:
    struct TTDescComponetList {
        unsigned char streamType = 0;
        unsigned int formatIdentifier = 0;
        unsigned char detailLength = 0;
        std::vector<unsigned char> detail;
    };

    TCDescComponentList();
    ~TCDescComponentList() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short NumberOfComponet() const { return static_cast<unsigned short>(m_components.size()); }
    // A deep copy into `out`; an index out of range does nothing.
    void GetComponentList(int index, TTDescComponetList& out) const;
    void GetStreamInfoDetailFor3D(int index, TTStreoScopicVideoInfo* info) const;
    void GetStreamInfoDetailForAVC(int index, TTAVCVideoInfo* info) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTComponent {
        unsigned char streamType;
        unsigned int formatIdentifier;
        TTRawRun detail;
    };
    const TTComponent* m_Component(int index) const;

    std::vector<TTComponent> m_components;
};

#endif
