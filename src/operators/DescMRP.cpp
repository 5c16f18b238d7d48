#include "DescMRP.h"

#include <stdexcept>
#include <string>

#include "../core/ByteReader.h"
#include "../core/Log.h"

namespace {
constexpr unsigned int kGtplSpecifier = 0x000062E1;
constexpr unsigned int kDishTvSpecifier = 0xECCA0001;
// Each record ahead of Dish TV's price.
constexpr int kDishTvRecordSize = 7;
} // namespace

TCDescMRP::TCDescMRP(int tag, unsigned int privateDataSpecifier) : TCBaseDesc(tag), m_pds(privateDataSpecifier) {}

void TCDescMRP::DeleteAll()
{
    m_price = kNoPrice;
}

TCBaseDesc* TCDescMRP::Fork() const
{
    return t_ForkAs(new TCDescMRP(m_tag, m_pds));
}

int TCDescMRP::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_price = kNoPrice;
    if (m_pds == kGtplSpecifier)
        return m_ParseGTPL(payload, length);
    if (m_pds == kDishTvSpecifier)
        return m_ParseDishTv(payload, length);
    return 0;
}

int TCDescMRP::m_ParseDishTv(const unsigned char* payload, int length)
{
    if (length == 0)
        return 0;
    const int records = payload[0] * kDishTvRecordSize;
    if (length <= records)
        return 1;
    if (length <= records + 1)
        return records + 1;
    if (payload[records + 1] == 1) {
        m_price = kFree;
        return length;
    }
    const int at = records + 2;
    if (length - at < 3)
        return at;
    const int units = static_cast<int>(ReadBE16(payload + at));
    const int hundredths = payload[at + 2];
    if (units <= 9999 && hundredths <= 99) {
        m_price = units * 100 + hundredths;
        ZUM_LOGI("TCDescMRP::m_ParseDishTv parsed[%d] from [%d]", m_price, length);
    } else {
        ZUM_LOGE("TCDescMRP::m_ParseDishTv Wrong value in price [%d].[%d] !!!", units, hundredths);
    }
    return length;
}

int TCDescMRP::m_ParseGTPL(const unsigned char* payload, int length)
{
    if (length == 0)
        return 0;
    const unsigned char kind = payload[0];
    const std::string text(reinterpret_cast<const char*>(payload + 1), static_cast<size_t>(length - 1));
    if (kind == 0) {
        m_price = kFree;
    } else if (kind == 1 && !text.empty()) {
        try {
            int units = std::stoi(text);
            int hundredths = 0;
            const size_t point = text.find('.');
            if (point != std::string::npos && point + 1 < text.size())
                hundredths = std::stoi(text.substr(point + 1));
            if (units > 999)
                units %= 1000;
            if (hundredths > 99)
                hundredths %= 100;
            m_price = units * 100 + hundredths;
        } catch (const std::exception& failure) {
            ZUM_LOGE("TCDescMRP::m_ParseGTPL %s stream data:[%s]", failure.what(), text.c_str());
        }
    }
    return length;
}
