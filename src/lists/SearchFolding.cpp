#include "SearchFolding.h"

#include "core/TextCase.h"

namespace coinlight {

namespace {

// The plain letter of each character from U+00C0 to U+017F; "*" stands for the few that
// become two letters, "-" for the two signs of the block (× and ÷), which stay.
constexpr std::string_view kLatinBases = "aaaaaa*ceeeeiiiidnooooo-ouuuuy**"
                                         "aaaaaa*ceeeeiiiidnooooo-ouuuuy*y"
                                         "aaaaaaccccccccddddeeeeeeeeeegggggggghhhh"
                                         "iiiiiiiiii**jjkkkllllllllllnnnnnnnnnoooooo**"
                                         "rrrrrrsssssssstttttt"
                                         "uuuuuuuuuuuuwwyyyzzzzzzs";
constexpr char32_t kFirstLatin = 0xC0;
static_assert(kLatinBases.size() == 0x180 - kFirstLatin);

std::string_view TwoLetters(char32_t character) {
    switch (character) {
    case 0xC6: // Æ
    case 0xE6:
        return "ae";
    case 0xDE: // Þ
    case 0xFE:
        return "th";
    case 0xDF:
        return "ss";
    case 0x132: // Ĳ
    case 0x133:
        return "ij";
    default: // Œ
        return "oe";
    }
}

bool IsContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

} // namespace

void AppendFolded(std::string_view text, std::string& out) {
    out.reserve(out.size() + text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80) {
            out.push_back(LowerAscii(text[i]));
            continue;
        }
        // Every character this folds is two bytes long: C3 to C5 for the Latin letters, CC
        // and CD for the combining accents.
        const bool twoBytes = i + 1 < text.size() && IsContinuation(text[i + 1]);
        const char32_t character = twoBytes ? (char32_t{lead & 0x1Fu} << 6) |
                                                  (static_cast<unsigned char>(text[i + 1]) & 0x3Fu)
                                            : 0;
        if (twoBytes && lead >= 0xC3 && lead <= 0xC5) {
            const char base = kLatinBases[character - kFirstLatin];
            if (base == '*') {
                out.append(TwoLetters(character));
            } else if (base == '-') {
                out.append(text.substr(i, 2));
            } else {
                out.push_back(base);
            }
            ++i;
        } else if (twoBytes && character >= 0x300 && character < 0x370) {
            ++i; // a combining accent: the letter before it stands alone
        } else {
            out.push_back(text[i]);
        }
    }
}

} // namespace coinlight
