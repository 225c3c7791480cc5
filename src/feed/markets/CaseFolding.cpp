#include "feed/markets/CaseFolding.h"

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>

namespace zantroq::feed {
namespace {

std::string FoldUnicode(std::string_view utf8)
{
    icu::UnicodeString text =
        icu::UnicodeString::fromUTF8(icu::StringPiece(utf8.data(), static_cast<std::int32_t>(utf8.size())));
    text.foldCase();
    UErrorCode error = U_ZERO_ERROR;
    const icu::Normalizer2* const composer = icu::Normalizer2::getNFCInstance(error);
    if (U_SUCCESS(error)) {
        const icu::UnicodeString composed = composer->normalize(text, error);
        if (U_SUCCESS(error))
            text = composed;
    }
    std::string folded;
    text.toUTF8String(folded);
    return folded;
}

} // namespace

bool IsAscii(std::string_view text)
{
    unsigned char all = 0;
    for (const char c : text)
        all = static_cast<unsigned char>(all | static_cast<unsigned char>(c));
    return all < 0x80;
}

std::string FoldCase(std::string_view utf8)
{
    if (!IsAscii(utf8))
        return FoldUnicode(utf8);
    std::string folded(utf8);
    std::transform(folded.begin(), folded.end(), folded.begin(), FoldAscii);
    return folded;
}

} // namespace zantroq::feed
