#include "ISDBTableUtil.h"

#include <cstring>

namespace zum_isdb {

bool CopyOut(const std::vector<unsigned char>& stored, int& length, unsigned char* out)
{
    if (!out || length < 1) {
        length = 0;
        return false;
    }
    if (static_cast<size_t>(length) > stored.size())
        length = static_cast<int>(stored.size());
    if (length > 0)
        std::memcpy(out, stored.data(), static_cast<size_t>(length));
    return true;
}

} // namespace zum_isdb
