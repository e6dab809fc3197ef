#include "platform/area_store.hpp"

namespace brinewright {

std::size_t Next_Area_Number() {
    static std::size_t Last = 0;
    return Last++;
}

} // namespace brinewright
