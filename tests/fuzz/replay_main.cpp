// Replays a corpus through a fuzz target without libFuzzer, so that every build tries all inputs that ever
// mattered.

#include "tests/fuzz/require.hpp"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

int main(int Argument_Count, char** Arguments) {
    int Count = 0;
    for (int I = 1; I < Argument_Count; ++I)
        for (const auto& Entry : std::filesystem::directory_iterator(Arguments[I])) {
            std::ifstream File(Entry.path(), std::ios::binary);
            const std::vector<char> Bytes{std::istreambuf_iterator<char>(File), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(Bytes.data()), Bytes.size());
            ++Count;
        }
    std::cout << Count << " inputs replayed\n";
    return Count > 0 ? 0 : 1; // an empty corpus tests nothing
}
