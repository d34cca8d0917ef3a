#include "find/WebServices.h"

#include <cstddef>

#include "faults/Faults.h"

namespace lindrel {

std::wstring ServiceAddress(int service, std::wstring_view text) {
    if (service < 1 || service >= static_cast<int>(kWebServices.size())) throw RangeFault();
    return std::wstring(kWebServices[static_cast<std::size_t>(service)].Prefix).append(text);
}

}  // namespace lindrel
