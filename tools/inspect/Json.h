#ifndef ZUM_TOOLS_INSPECT_JSON_H
#define ZUM_TOOLS_INSPECT_JSON_H

#include <nlohmann/json.hpp>

namespace zuminspect {

// The inspector's one model type: keys keep the order they were written in,
// so that the JSON output and the tree read in the same order.
using Json = nlohmann::ordered_json;

} // namespace zuminspect

#endif
