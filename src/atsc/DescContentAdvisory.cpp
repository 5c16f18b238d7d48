#include "DescContentAdvisory.h"

#include <algorithm>
#include <cctype>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"

namespace {

bool StartsWith(const std::string& token, const char* prefix)
{
    return token.compare(0, std::char_traits<char>::length(prefix), prefix) == 0;
}

// The dimension character and the value token of one "{d 'value'}" group at
// `at` (behind its brace), read as "{%c '%s" reads them.
void ReadGroup(const std::string& s, size_t at, int& dimension, std::string& token)
{
    token.clear();
    dimension = 0;
    if (at >= s.size())
        return;
    dimension = static_cast<unsigned char>(s[at]) - 0x30;
    ++at;
    while (at < s.size() && std::isspace(static_cast<unsigned char>(s[at])))
        ++at;
    if (at >= s.size() || s[at] != '\'')
        return;
    ++at;
    while (at < s.size() && std::isspace(static_cast<unsigned char>(s[at])))
        ++at;
    size_t end = at;
    while (end < s.size() && !std::isspace(static_cast<unsigned char>(s[end])))
        ++end;
    token = s.substr(at, end - at);
    // The closing quote goes with the first brace behind the value.
    const size_t brace = token.find('}', 1);
    if (brace != std::string::npos)
        token.erase(brace - 1);
}

} // namespace

TCDescContentAdvisory::TCDescContentAdvisory() : TCBaseDesc(0x87) {}

TCDescContentAdvisory::~TCDescContentAdvisory()
{
    DeleteAll();
}

void TCDescContentAdvisory::DeleteAll()
{
    m_region.clear();
    m_ratingRegionCount = 0;
    if (m_curSvc == ATSC3)
        m_strings.clear();
}

TCBaseDesc* TCDescContentAdvisory::Fork() const
{
    std::unique_ptr<TCDescContentAdvisory> copy(new TCDescContentAdvisory());
    switch (m_curSvc) {
    case ATSC3:
        copy->m_curSvc = ATSC3;
        if (m_ratingRegionCount == 0)
            return copy.release();
        ZUM_LOGI("[TCDescContentAdvisory::Fork][%p] ATSC3", static_cast<const void*>(this));
        copy->ParseATSC3(m_strings, m_ratingRegionCount);
        return copy.release();
    case OTHERS:
        if (m_rawLength < 1) {
            copy->m_curSvc = OTHERS;
            return copy.release();
        }
        ZUM_LOGI("[TCDescContentAdvisory::Fork][%p] OTHERS", static_cast<const void*>(this));
        return t_ForkAs(copy.release());
    default:
        // An empty body in a loop never reaches t_Parse: its container's copy still needs the object.
        if (m_tableId >= 0) {
            copy->m_tableId = m_tableId;
            return copy.release();
        }
        ZUM_LOGI("[TCDescContentAdvisory::Fork][%p] UNDEFINED", static_cast<const void*>(this));
        return nullptr;
    }
}

int TCDescContentAdvisory::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_curSvc = OTHERS;
    if (length < 1)
        return 0;
    const int count = payload[0] & 0x3F;
    if (count == 0)
        return length;
    // Reading ends at the descriptor's end; the regions read so far stay.
    TCByteReader reader(payload + 1, length - 1);
    int consumed = 1;
    m_region.reserve(static_cast<size_t>(count));
    for (int i = 0; i < count && reader.Has(2); ++i) {
        m_region.emplace_back();
        TCRatingRegion& region = m_region.back();
        region.m_ratingRegion = static_cast<unsigned char>(reader.U8());
        const int dimensions = static_cast<int>(reader.U8());
        consumed += 3 + 2 * dimensions;
        for (int j = 0; j < dimensions && reader.Has(2); ++j) {
            TCRatingRegion::TTDimension pair;
            pair.m_ratingDimensionJ = static_cast<unsigned char>(reader.U8());
            pair.m_ratingValue = static_cast<unsigned char>(reader.U8() & 0x0F);
            region.m_dimensions.push_back(pair);
        }
        if (static_cast<int>(region.m_dimensions.size()) < dimensions || !reader.Has(1))
            break;
        region.m_ratingDescriptionLength = static_cast<unsigned char>(reader.U8());
        consumed += region.m_ratingDescriptionLength;
        if (region.m_ratingDescriptionLength > 0) {
            const int held = std::min<int>(region.m_ratingDescriptionLength, reader.Left());
            region.m_pDescription.reset(new TCMultipleStringStruct);
            region.m_pDescription->Set(reader.Here(), static_cast<unsigned int>(held));
            reader.Skip(held);
        }
    }
    m_ratingRegionCount = static_cast<unsigned char>(m_region.size());
    return consumed;
}

const TCDescContentAdvisory::TCRatingRegion* TCDescContentAdvisory::m_Region(int i) const
{
    // A string list that failed holds regions that count for nothing.
    if (i < 0 || i >= m_ratingRegionCount || i >= static_cast<int>(m_region.size()))
        return nullptr;
    return &m_region[static_cast<size_t>(i)];
}

const TCDescContentAdvisory::TCRatingRegion::TTDimension* TCDescContentAdvisory::m_Pair(int i, int j) const
{
    const TCRatingRegion* region = m_Region(i);
    if (!region || j < 0 || j >= static_cast<int>(region->m_dimensions.size()))
        return nullptr;
    return &region->m_dimensions[static_cast<size_t>(j)];
}

unsigned char TCDescContentAdvisory::RatingRegion(int i) const
{
    const TCRatingRegion* region = m_Region(i);
    return region ? region->m_ratingRegion : 0;
}

unsigned char TCDescContentAdvisory::RatingDemensions(int i) const
{
    const TCRatingRegion* region = m_Region(i);
    return region ? static_cast<unsigned char>(region->m_dimensions.size()) : 0;
}

unsigned char TCDescContentAdvisory::RatingDimensionJ(int i, int j) const
{
    const TCRatingRegion::TTDimension* pair = m_Pair(i, j);
    return pair ? pair->m_ratingDimensionJ : 0;
}

unsigned char TCDescContentAdvisory::RatingValue(int i, int j) const
{
    const TCRatingRegion::TTDimension* pair = m_Pair(i, j);
    return pair ? pair->m_ratingValue : 0;
}

unsigned char TCDescContentAdvisory::RatingDescLength(int i) const
{
    const TCRatingRegion* region = m_Region(i);
    return region ? region->m_ratingDescriptionLength : 0;
}

TCMultipleStringStruct* TCDescContentAdvisory::GetRatingDescText(int i) const
{
    const TCRatingRegion* region = m_Region(i);
    return region ? region->m_pDescription.get() : nullptr;
}

unsigned char TCDescContentAdvisory::m_RatingRegionStringToValue(char c) const
{
    const int value = static_cast<unsigned char>(c) - 0x30;
    if (value >= 0 && value <= 9) {
        ZUM_LOGI("[TCDescContentAdvisory::m_RatingRegionStringToValue][%p] ratingRegion[%d]",
                 static_cast<const void*>(this), value);
        return static_cast<unsigned char>(value);
    }
    ZUM_LOGE("[TCDescContentAdvisory::m_RatingRegionStringToValue][%p] ratingRegion[%d] is wrong",
             static_cast<const void*>(this), value);
    return 1;
}

unsigned char TCDescContentAdvisory::m_RatingValue(unsigned char region, int dimension, const std::string& token)
{
    if (token.empty())
        return 0;
    const char first = token[0];
    if (region == 1) {
        switch (dimension) {
        case 0:
            if (StartsWith(token, "None")) return 1;
            if (StartsWith(token, "TV-G")) return 2;
            if (StartsWith(token, "TV-PG")) return 3;
            if (StartsWith(token, "TV-14")) return 4;
            if (StartsWith(token, "TV-MA")) return 5;
            return 0;
        case 1: return first == 'D' ? 1 : 0;
        case 2: return first == 'L' ? 1 : 0;
        case 3: return first == 'S' ? 1 : 0;
        case 4: return first == 'V' ? 1 : 0;
        case 5: return token == "TV-Y" ? 1 : token == "TV-Y7" ? 2 : 0;
        case 6: return StartsWith(token, "FV") ? 1 : 0;
        case 7:
            if (StartsWith(token, "N/A")) return 1;
            if (first == 'G') return 2;
            if (StartsWith(token, "PG-13")) return 4;
            if (StartsWith(token, "PG")) return 3;
            if (first == 'R') return 5;
            if (StartsWith(token, "NC-17")) return 6;
            if (first == 'X') return 7;
            if (StartsWith(token, "NR")) return 8;
            return 0;
        default:
            (void)ZUM_ASSERT(!"Invalid Dimension!!");
            return 0;
        }
    }
    if (region == 2) {
        if (dimension == 0) {
            if (first == 'E') return 0;
            if (StartsWith(token, "C8")) return 2;
            if (first == 'C') return 1;
            if (first == 'G') return 3;
            if (StartsWith(token, "PG")) return 4;
            if (StartsWith(token, "14+")) return 5;
            if (StartsWith(token, "18+")) return 6;
            return 0;
        }
        if (dimension == 1) {
            if (first == 'E') return 0;
            if (first == 'G') return 1;
            if (StartsWith(token, "8+")) return 2;
            if (StartsWith(token, "13+")) return 3;
            if (StartsWith(token, "16")) return 4;
            if (StartsWith(token, "18+")) return 5;
        }
        return 0;
    }
    (void)ZUM_ASSERT(!"Invalid Region!!");
    return 0;
}

bool TCDescContentAdvisory::ParseATSC3(std::vector<std::string> strings, unsigned int count)
{
    m_curSvc = ATSC3;
    // A count refused leaves the model as it was.
    if (count > kMaxStrings) {
        ZUM_LOGE("[TCDescContentAdvisory::ParseATSC3] String Count is too large number.");
        return false;
    }
    DeleteAll();
    m_region.resize(count);
    for (unsigned int i = 0; i < count; ++i) {
        const std::string& s = i < strings.size() ? strings[i] : std::string();
        TCRatingRegion& region = m_region[i];
        region.m_ratingRegion = m_RatingRegionStringToValue(s.empty() ? '\0' : s[0]);
        const size_t open = s.find('{');
        if (open == std::string::npos) {
            ZUM_LOGE("[TCDescContentAdvisory::ParseATSC3] No dimensions");
            return false;
        }
        for (size_t at = open; at != std::string::npos; at = s.find('{', at + 1)) {
            int dimension = 0;
            std::string token;
            ReadGroup(s, at + 1, dimension, token);
            TCRatingRegion::TTDimension pair;
            pair.m_ratingDimensionJ = static_cast<unsigned char>(dimension);
            pair.m_ratingValue = m_RatingValue(region.m_ratingRegion, dimension, token);
            region.m_dimensions.push_back(pair);
            ZUM_LOGI("[TCDescContentAdvisory::ParseATSC3][%p] Region[%d] Dim[%d] Val[%s:%d]",
                     static_cast<const void*>(this), region.m_ratingRegion, dimension, token.c_str(),
                     pair.m_ratingValue);
        }
    }
    m_strings = std::move(strings);
    m_ratingRegionCount = static_cast<unsigned char>(count);
    return true;
}

void TCDescContentAdvisory::Dump() const
{
    const void* self = this;
    ZUM_LOGI("[TCDescContentAdvisory::Dump][%p] m_ratingRegionCount:%d", self, m_ratingRegionCount);
    ZUM_LOGI("[TCDescContentAdvisory::Dump][%p] m_region:%p", self,
             m_region.empty() ? nullptr : static_cast<const void*>(m_region.data()));
    ZUM_LOGI("[TCDescContentAdvisory::Dump][%p] m_curSvc:%d", self, m_curSvc);
    for (const TCRatingRegion& region : m_region) {
        ZUM_LOGI("[TCDescContentAdvisory::Dump][%p] m_ratingRegion:%d", self, region.m_ratingRegion);
        for (const TCRatingRegion::TTDimension& pair : region.m_dimensions)
            ZUM_LOGI("[TCDescContentAdvisory::Dump][%p] m_ratingDimensionJ:%d, m_ratingValue:%d", self,
                     pair.m_ratingDimensionJ, pair.m_ratingValue);
    }
}
