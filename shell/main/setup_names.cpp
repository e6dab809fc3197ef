#include "shell/main/setup_names.hpp"

#include "all_state.hpp"

#include <algorithm>
#include <map>
#include <type_traits>

namespace brinewright {

namespace {

// Calls At_Leaf(path, address) for every number, boolean and text below Value.
template <class T, class Leaf>
void Each_Variable(const std::string& Path, T& Value, Leaf& At_Leaf) {
    if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, std::string>) {
        At_Leaf(Path, static_cast<const void*>(&Value));
    } else if constexpr (requires { Value.Elements; }) {
        for (int I = T::First_Index; I <= T::Last_Index; ++I)
            Each_Variable(Path + "[" + std::to_string(I) + "]", Value[I], At_Leaf);
    } else {
        Visit_Record(Value, [&](const char* Name, auto& Member) {
            Each_Variable(Path + "." + Name, Member, At_Leaf);
        });
    }
}

} // namespace

std::vector<std::string> Names_Of(Simulator_State& State, const std::vector<const void*>& Addresses) {
    std::map<const void*, std::string> All;
    const auto Look = [&](const std::string& Path, const void* Address) {
        if (std::find(Addresses.begin(), Addresses.end(), Address) != Addresses.end()) All[Address] = Path;
    };
    if (!Addresses.empty())
        Visit_State(State, [&](const char* Name, auto& Value) { Each_Variable(Name, Value, Look); });
    std::vector<std::string> Names;
    for (const void* Address : Addresses)
        if (const auto Found = All.find(Address); Found != All.end()) Names.push_back(Found->second);
    return Names;
}

} // namespace brinewright
