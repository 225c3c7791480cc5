// The fields of each study on the page "Lower Studies": one row per study assigns the shared controls.
// Constant data, any thread.
#pragma once

#include "settings/ChartSettings.h"

#include <optional>
#include <span>

namespace zantroq {

// A choice of a fixed period.
struct sPeriodChoice
{
    const char* Text = nullptr; // null: the study does not have this choice
    std::int32_t Period = 0;
    std::int32_t Short = 0, Long = 0; // MACD only; Period is the signal period then
};

// A label with a number field, a color button or both.
struct sStudyField
{
    int LabelControl = 0;
    const char* Label = nullptr;
    int NumberControl = 0; // 0: no number
    std::int32_t sStudySettings::*Number = nullptr;
    int ColorControl = 0; // 0: no color
    ColorValue sStudySettings::*Color = nullptr;
};

struct sStudyFields
{
    const char* Group;
    std::array<sPeriodChoice, 3> Choices;
    const char* Custom;                  // text of the choice that uses the number in the edit
    const char* PeriodLabel;             // null: none
    std::int32_t sStudySettings::*Radio; // the choice: 0 custom, then the choices in order
    std::array<sStudyField, 4> Fields{}; // entries without a label control are unused
    bool HasPeriodTriple = false;        // short, long and signal period
    std::int32_t sStudySettings::*Fast = nullptr;
    std::int32_t sStudySettings::*Average = nullptr; // the switch "Show average:"
};

const sStudyFields& FieldsOf(int study); // 0 to 9

} // namespace zantroq
