// SPDX-License-Identifier: MIT
// Checks the properties with the files named as arguments, without a fuzzer.

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        std::ostringstream contents;
        if (!(contents << std::ifstream(argv[i], std::ios::binary).rdbuf())) {
            std::fprintf(stderr, "nothing read from %s\n", argv[i]);
            return 1;
        }
        const std::string input = contents.str();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.data()), input.size());
    }
    return argc > 1 ? 0 : 1;
}
