#include "settings/pages/StudyNames.h"

namespace zantroq {
namespace {

constexpr std::array<const char*, StudyKinds> Names{"Relative Strength Index (RSI)",
                                                    "Momentum (MOM)",
                                                    "Rate of Change (ROC)",
                                                    "On-Balance Volume (OBV)",
                                                    "Mov. Av. Conv. Diverg. (MACD)",
                                                    "Stochastics (STO)",
                                                    "Volume (VOL)",
                                                    "Money Flow (MF)",
                                                    "Money Flow Index (MFI)",
                                                    "Av. Direct. Movm. Index (ADX)"};

} // namespace

const char* StudyName(int study)
{
    return Names.at(static_cast<std::size_t>(study));
}

std::vector<std::string> StudyNameTexts()
{
    return {Names.begin(), Names.end()};
}

} // namespace zantroq
