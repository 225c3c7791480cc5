// The bounds of a request: which points its date, time and filter limits admit. Bounds are compared as
// texts. Bounds of the usual form are compared as numbers, which gives the same order without formatting
// the time. No lock of their own: the request that contains them locks.
#pragma once

#include "platform/CalendarTime.h"

#include <string>

namespace zantroq {

// One bound; an empty text means no bound.
class CSeriesBound
{
public:
    explicit CSeriesBound(int digits) : m_digits(digits) {}
    void Set(std::string text);
    const std::string& Text() const { return m_text; }
    bool Empty() const { return m_text.empty(); }
    // True if the text has only digits, as many as the values that it is compared with.
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

    // True if a bound is set.
    bool Any() const { return m_any; }
    // Bounds are inclusive. Times of day apply to every date of the range.
    bool Admits(const sTIME_W_MILLISECONDS& time) const;
    // Must be called after a bound was set.
    void Update();

private:
    bool AdmitsNumbers(const sCALENDAR_TIME& parts) const;
    bool AdmitsTexts(const sTIME_W_MILLISECONDS& time) const;

    bool m_any = false;    // a bound is set
    bool m_numbers = true; // all bounds that are set are numbers
};

} // namespace zantroq
