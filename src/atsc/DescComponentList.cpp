#include "DescComponentList.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"

namespace {

constexpr int kComponentHead = 6;

} // namespace

TCDescComponentList::TCDescComponentList() : TCBaseDesc(0xBB) {}

TCDescComponentList::~TCDescComponentList()
{
    DeleteAll();
}

void TCDescComponentList::DeleteAll()
{
    m_components.clear();
}

TCBaseDesc* TCDescComponentList::Fork() const
{
    return t_ForkAs(new TCDescComponentList());
}

int TCDescComponentList::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0) {
        ZUM_LOGD("TCDescComponentList::t_Parse, len[%i] < 1[%i]", 0, 1);
        return 0;
    }
    int count = payload[0] & 0x7F;
    if (count == 0)
        count = 1;
    int offset = 1;
    for (int i = 0; i < count; ++i) {
        if (offset + kComponentHead >= length)
            return offset;
        const unsigned char* at = payload + offset;
        const int detailLength = at[5];
        TTComponent component;
        component.streamType = at[0];
        component.formatIdentifier = ReadBE32(at + 1);
        // Cut to what the descriptor holds.
        component.detail = t_Run(payload, at + kComponentHead,
                                 std::min(detailLength, length - offset - kComponentHead));
        m_components.push_back(component);
        offset += kComponentHead + detailLength;
        if (offset > length) {
            ZUM_LOGD("TCDescComponentList::t_Parse, len[%i] < parsing size[%i]", length, offset);
            return length;
        }
    }
    return offset;
}

const TCDescComponentList::TTComponent* TCDescComponentList::m_Component(int index) const
{
    return RecordAt(m_components, index);
}

void TCDescComponentList::GetComponentList(int index, TTDescComponetList& out) const
{
    const TTComponent* c = m_Component(index);
    if (!c)
        return;
    out.streamType = c->streamType;
    out.formatIdentifier = c->formatIdentifier;
    out.detailLength = c->detail.length;
    const unsigned char* detail = t_At(c->detail);
    out.detail.assign(detail, detail ? detail + c->detail.length : detail);
}

void TCDescComponentList::GetStreamInfoDetailFor3D(int index, TTStreoScopicVideoInfo* info) const
{
    const TTComponent* c = m_Component(index);
    if (!c || !info || c->detail.length == 0) {
        ZUM_LOGD("TCDescComponentList::GetStreamInfoDetailFor3D index[%d], detail_Info_Length[%d]", index,
                 c ? c->detail.length : 0);
        return;
    }
    const unsigned char* detail = t_At(c->detail);
    const unsigned char b0 = detail[0];
    info->baseVideoFlag = (b0 >> 1) & 0x01;
    if (info->baseVideoFlag) {
        info->leftViewFlag = b0 & 0x01;
        return;
    }
    // A one-byte detail has no second byte: it counts as 0.
    const unsigned char b1 = c->detail.length > 1 ? detail[1] : 0;
    info->usableAs2D = b0 & 0x01;
    info->horizontalUpsamplingFactor = (b1 >> 4) & 0x0F;
    info->verticalUpsamplingFactor = b1 & 0x0F;
}

void TCDescComponentList::GetStreamInfoDetailForAVC(int index, TTAVCVideoInfo* info) const
{
    const TTComponent* c = m_Component(index);
    if (!c || !info || c->detail.length != 2) {
        ZUM_LOGD("TCDescComponentList::GetStreamInfoDetailForAVC index[%d], detail_Info_Length[%d]", index,
                 c ? c->detail.length : 0);
        return;
    }
    const unsigned char* detail = t_At(c->detail);
    info->value1 = (detail[0] >> 6) & 0x03;
    info->value2 = detail[0] & 0x3F;
    info->value3 = (detail[1] >> 5) & 0x07;
}
