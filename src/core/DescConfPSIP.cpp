#include "DescConfPSIP.h"

TCBaseDesc* TCDescConfPSIP::NewDescriptor(int tag, const unsigned char* /*data*/, unsigned int /*pds*/)
{
    switch (tag) {
    default: return new TCDescDefault(tag);
    }
}
