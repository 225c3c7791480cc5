#include "market/SeriesBounds.h"

#include <utility>

namespace zantroq {

namespace {

bool Below(int value, const CSeriesBound& bound)
{
    return !bound.Empty() && value < bound.Number();
}
bool Above(int value, const CSeriesBound& bound)
{
    return !bound.Empty() && value > bound.Number();
}
bool Below(const std::string& value, const CSeriesBound& bound)
{
    return !bound.Empty() && value < bound.Text();
}
bool Above(const std::string& value, const CSeriesBound& bound)
{
    return !bound.Empty() && value > bound.Text();
}

} // namespace

void CSeriesBound::Set(std::string text)
{
    m_text = std::move(text);
    m_number = -1;
    if (m_text.size() != static_cast<std::size_t>(m_digits))
        return;
    int number = 0;
    for (const char c : m_text) {
        if (c < '0' || c > '9')
            return;
        number = number * 10 + (c - '0');
    }
    m_number = number;
}

void sSeriesBounds::Update()
{
    m_any = false;
    m_numbers = true;
    for (const CSeriesBound* bound :
         {&BeginDate, &EndDate, &BeginTime, &BeginFilterTime, &EndTime, &EndFilterTime}) {
        if (bound->Empty())
            continue;
        m_any = true;
        m_numbers = m_numbers && bound->IsNumber();
    }
}

bool sSeriesBounds::Admits(const sTIME_W_MILLISECONDS& time) const
{
    if (!m_any)
        return true;
    sCALENDAR_TIME parts;
    // A year below 1000 has fewer than four digits as text, so its texts do not compare like numbers.
    if (m_numbers && time.Status == TimeValid && VariantTimeToSystemTime(time.Time, parts) &&
        parts.Year >= 1000)
        return AdmitsNumbers(parts);
    return AdmitsTexts(time);
}

bool sSeriesBounds::AdmitsNumbers(const sCALENDAR_TIME& parts) const
{
    const int date = parts.Year * 10000 + parts.Month * 100 + parts.Day;
    if (Below(date, BeginDate) || Above(date, EndDate))
        return false;
    const int timeOfDay = parts.Hour * 10000 + parts.Minute * 100 + parts.Second;
    return !Below(timeOfDay, BeginTime) && !Below(timeOfDay, BeginFilterTime) && !Above(timeOfDay, EndTime) &&
           !Above(timeOfDay, EndFilterTime);
}

bool sSeriesBounds::AdmitsTexts(const sTIME_W_MILLISECONDS& time) const
{
    const std::string date = FormatTime(time, "%Y%m%d");
    if (Below(date, BeginDate) || Above(date, EndDate))
        return false;
    const std::string timeOfDay = FormatTime(time, "%H%M%S");
    return !Below(timeOfDay, BeginTime) && !Below(timeOfDay, BeginFilterTime) && !Above(timeOfDay, EndTime) &&
           !Above(timeOfDay, EndFilterTime);
}

} // namespace zantroq
