// Runs a fuzz target without libFuzzer: over its seed files, and over inputs made from them
// that have broken real files before (cut short, bytes flipped, lines doubled or dropped),
// plus a few hostile inputs of our own. Every build runs this, so a reader that crashes on
// bad input fails the ordinary test run and not only the nightly fuzzing.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Bytes = std::string;

void Run(const Bytes& input) {
    // A copy of exactly the input's size, so that a read past its end is seen by the
    // address sanitizer instead of landing in the string's spare capacity.
    std::vector<std::uint8_t> exact(input.begin(), input.end());
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

std::vector<Bytes> Seeds(int argc, char** argv) {
    std::vector<Bytes> seeds;
    const auto add = [&seeds](const std::filesystem::path& file) {
        Bytes bytes(std::filesystem::file_size(file), '\0');
        std::ifstream in(file, std::ios::binary);
        in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        seeds.push_back(std::move(bytes));
    };
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path path = argv[i];
        if (std::filesystem::is_directory(path)) {
            for (const auto& entry : std::filesystem::directory_iterator(path)) {
                if (entry.is_regular_file()) {
                    add(entry.path());
                }
            }
        } else if (std::filesystem::is_regular_file(path)) {
            add(path);
        }
    }
    return seeds;
}

std::vector<Bytes> HostileInputs() {
    std::mt19937 random(20261123);
    Bytes binary(65536, '\0');
    for (char& byte : binary) {
        byte = static_cast<char>(random() & 0xFF);
    }
    return {
        Bytes(),
        Bytes(1, '\0'),
        binary,
        Bytes(1 << 20, 'A'),                     // one line of a megabyte
        Bytes(70000, '"'),                       // a quoted field longer than 16 bits count
        Bytes(100000, '\n'),                     // nothing but line ends
        Bytes(50000, '\r'),                      // old Mac line ends
        Bytes("\xEF\xBB\xBF") + Bytes(300, '['), // a byte-order mark, then a broken section
        Bytes("\"a\",\"b\"\r\n\"") + Bytes(200000, ','),
    };
}

/// Mutations that real damage looks like, repeatable from run to run.
std::vector<Bytes> Mutations(const Bytes& seed, std::mt19937& random) {
    std::vector<Bytes> out;
    if (seed.empty()) {
        return out;
    }
    for (std::size_t cut : {std::size_t{1}, seed.size() / 3, seed.size() / 2, seed.size() - 1}) {
        out.push_back(seed.substr(0, cut));
    }
    const char* const specials = "\"<>=,;[]\r\n\t$&\\\0\xFF";
    for (int i = 0; i < 48; ++i) {
        Bytes changed = seed;
        const int edits = 1 + static_cast<int>(random() % 8);
        for (int e = 0; e < edits && !changed.empty(); ++e) {
            const std::size_t at = random() % changed.size();
            switch (random() % 5) {
            case 0:
                changed[at] = specials[random() % 16];
                break;
            case 1:
                changed[at] = static_cast<char>(random() & 0xFF);
                break;
            case 2:
                changed.erase(at, 1 + random() % 64);
                break;
            case 3: {
                const std::size_t length = 1 + random() % 256;
                changed.insert(at, changed.substr(at, length));
                break;
            }
            default:
                changed.insert(at, 1, specials[random() % 16]);
                break;
            }
        }
        out.push_back(std::move(changed));
    }
    return out;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<Bytes> seeds = Seeds(argc, argv);
    std::mt19937 random(42);
    std::size_t runs = 0;
    for (const Bytes& seed : seeds) {
        Run(seed);
        ++runs;
        for (const Bytes& mutated : Mutations(seed, random)) {
            Run(mutated);
            ++runs;
        }
    }
    for (const Bytes& hostile : HostileInputs()) {
        Run(hostile);
        ++runs;
    }
    std::printf("%zu seed files, %zu inputs, no crash\n", seeds.size(), runs);
    return seeds.empty() ? 1 : 0; // a target without seeds tests nothing worth having
}
