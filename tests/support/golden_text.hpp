#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace brinewright {

// Holds Text against tests/golden/<Name>. With BRINEWRIGHT_WRITE_GOLDEN set it replaces the file instead;
// what has changed in it then is to be read before it is committed.
inline void Expect_Golden(const std::string& Name, const std::string& Text) {
    const std::string Path = BRINEWRIGHT_SOURCE_DIR "/tests/golden/" + Name;
    if (std::getenv("BRINEWRIGHT_WRITE_GOLDEN")) {
        std::ofstream(Path, std::ios::binary) << Text;
        return;
    }
    std::ifstream File(Path, std::ios::binary);
    const std::string Golden{std::istreambuf_iterator<char>(File), {}};
    if (Golden == Text) return;
    const auto [Was, Is] = std::mismatch(Golden.begin(), Golden.end(), Text.begin(), Text.end());
    const auto Around = [](const std::string& All, std::string::const_iterator At) {
        const auto Place = static_cast<std::size_t>(At - All.begin());
        return All.substr(Place - std::min<std::size_t>(Place, 300), 500);
    };
    ADD_FAILURE() << Name << " line " << 1 + std::count(Golden.begin(), Was, '\n') << "\n--- is to be\n"
                  << Around(Golden, Was) << "\n--- is\n"
                  << Around(Text, Is);
}

} // namespace brinewright
