#ifndef ZUM_TOOLS_INSPECT_LAZYPARSER_H
#define ZUM_TOOLS_INSPECT_LAZYPARSER_H

#include <memory>

namespace zuminspect {

// The parser in `slot`, made and initialized when the first section needs it.
template <class Parser, class... Args>
Parser* Lazy(std::unique_ptr<Parser>& slot, const Args&... args)
{
    if (!slot) {
        slot = std::make_unique<Parser>(args...);
        slot->Initialize();
    }
    return slot.get();
}

} // namespace zuminspect

#endif
