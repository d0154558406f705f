// Passes the named files to a harness, for builds without libFuzzer. On a crash, the last printed
// name is that of the file.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        if (!file) {
            std::fprintf(stderr, "%s cannot be read\n", argv[i]);
            return 1;
        }
        const std::vector<char> content{std::istreambuf_iterator<char>(file), {}};
        std::fprintf(stderr, "%s\n", argv[i]);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()),
                               content.size());
    }
    return 0;
}
