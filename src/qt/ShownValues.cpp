#include "qt/ShownValues.h"

#include "market/ChartHistRequest.h"
#include "market/HistoryRecords.h"
#include "qt/PictureFile.h"
#include "window/ChartDlg.h"

#include <charconv>

namespace zantroq {
namespace {

void AddNumber(std::string& line, double number)
{
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    line += ',';
    line.append(digits, end);
}

} // namespace

std::string ShownValuesText(const CChartDlg& window)
{
    std::string text = "time,open,high,low,close,volume\n";
    const CChartHistRequest* series = window.Series();
    if (series == nullptr || !window.CompleteAndDrawn())
        return text;
    const bool intraday = window.Settings().Request.DataType <= MinuteData;
    const char* format = intraday ? "%Y-%m-%d %H:%M:%S" : "%Y-%m-%d";
    const sDisplayRange& range = window.Range();
    for (int index = range.first; index <= range.last && index < series->GetCount(0); ++index) {
        sHIST_DATA point;
        series->GetChartPoint(index, point);
        text += FormatTime(point.Time, format);
        for (const double number : {point.Open, point.High, point.Low, point.Close})
            AddNumber(text, number);
        text += ',' + std::to_string(window.DrawManager().Volume(index)) + '\n';
    }
    return text;
}

QString SaveShownValues(const CChartDlg& window, const QString& path)
{
    return WritePictureFile(path, QByteArray::fromStdString(ShownValuesText(window)));
}

} // namespace zantroq
