// The command line of `stills`, one argument per line, and the name templates.

#include "stills/CommandLineParser.h"
#include "stills/NameTemplate.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    std::vector<std::string> arguments;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line) && arguments.size() < 64;) {
        arguments.push_back(line);
    }
    static_cast<void>(stills::parseCommandLine(arguments));
    const auto names = stills::NameTemplate::parse(text);
    if (names.isGood()) {
        stills::NameFields fields;
        fields.stem = text;
        fields.frame = std::int64_t(size);
        static_cast<void>(names.value->fileName(fields, "jpg", static_cast<int>(size % 3)));
    }
    return 0;
}
