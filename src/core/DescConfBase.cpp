#include "DescConfBase.h"

TCDescConfBase::~TCDescConfBase() = default;

TCBaseDesc* TCDescConfBase::t_ProcessPrivateDesc(int tag)
{
    return new TCDescDefault(tag);
}
