// The range check of a request: which points its date, time and filter bounds let in. Texts are compared as
// texts; bounds of the usual form are compared as the numbers they spell, which orders the same way and needs
// no formatting.
#pragma once

#include "platform/CalendarTime.h"

#include <string>

namespace zantroq {

// One bound. Empty: no bound.
class CSeriesBound
{
public:
    explicit CSeriesBound(int digits) : m_digits(digits) {}
    void Set(std::string text);
    const std::string& Text() const { return m_text; }
    bool Empty() const { return m_text.empty(); }
    // True when the text is exactly as many digits as the values it is compared with.
    bool IsNumber() const { return m_number >= 0; }
    int Number() const { return m_number; }

private:
    int m_digits;
    int m_number = -1;
    std::string m_text;
};

struct sSeriesBounds
{
    CSeriesBound BeginDate{8}, EndDate{8};                                       // %Y%m%d
    CSeriesBound BeginTime{6}, BeginFilterTime{6}, EndTime{6}, EndFilterTime{6}; // %H%M%S

    // Some bound is set.
    bool Any() const { return m_any; }
    // Both ends are inside. The times of day hold on every date of the range.
    bool Admits(const sTIME_W_MILLISECONDS& time) const;
    // Recomputes what Admits asks first; to be called after a bound was set.
    void Update();

private:
    bool AdmitsNumbers(const sCALENDAR_TIME& parts) const;
    bool AdmitsTexts(const sTIME_W_MILLISECONDS& time) const;

    bool m_any = false;    // some bound is set
    bool m_numbers = true; // and all that are set are numbers
};

} // namespace zantroq
