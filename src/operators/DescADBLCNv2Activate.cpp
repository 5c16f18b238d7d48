#include "DescADBLCNv2Activate.h"

#include <stdexcept>
#include <string>

#include "../core/Log.h"

namespace {

const unsigned char kExtensionTag = 0xA3;
const int kHeadSize = 3;
const unsigned int kNoId = 0xFFFFFFFF;

} // namespace

TCDescADBLCNv2Activate::TCDescADBLCNv2Activate() : TCBaseDesc(0x7FA3) {}

void TCDescADBLCNv2Activate::DeleteAll()
{
    m_firstByte = 0xFFFFFFFF;
    m_secondByte = 0xFFFFFFFF;
    m_id = kNoId;
}

TCBaseDesc* TCDescADBLCNv2Activate::Fork() const
{
    return t_ForkAs(new TCDescADBLCNv2Activate());
}

int TCDescADBLCNv2Activate::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_id = kNoId;
    if (length == 0)
        return 0;
    if (payload[0] != kExtensionTag) {
        ZUM_LOGE("TCDescADBLCNv2Activate::t_Parse Invalid Extension Tag: %d", payload[0]);
        return 1;
    }
    if (length == 1)
        return 1;
    m_firstByte = payload[1];
    if (length == 2)
        return 2;
    m_secondByte = payload[2];
    if (length == kHeadSize) {
        ZUM_LOGE("TCDescADBLCNv2Activate::t_Parse Invalid dataLen: %d", 0);
        return kHeadSize;
    }
    std::string data(reinterpret_cast<const char*>(payload + kHeadSize), static_cast<size_t>(length - kHeadSize));
    const std::string::size_type at = data.find("ID=");
    if (at == std::string::npos)
        return length;
    data.erase(at, 3);
    try {
        m_id = static_cast<unsigned int>(std::stoi(data));
    } catch (const std::logic_error& failure) {
        // No digits where the number should start, or a number beyond an int.
        ZUM_LOGE("TCDescADBLCNv2Activate::t_Parse [%s] Invalid argument:%s", data.c_str(), failure.what());
        m_id = kNoId;
    }
    return length;
}
