#include "qt/output/PageJob.h"

#include <QFontMetricsF>
#include <QPdfWriter>
#include <QPrinter>

namespace zantroq {

namespace {

QString Text(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

CHeadingFont::CHeadingFont(const QString& family)
{
    if (family.isEmpty())
        m_font.setFamilies({"Times New Roman", "Liberation Serif", "Nimbus Roman", "DejaVu Serif", "Serif"});
    else
        m_font.setFamilies({family});
    m_font.setStyleHint(QFont::Serif);
    m_font.setHintingPreference(QFont::PreferNoHinting);
    m_font.setPixelSize(HeadingFontHeight);
}

int CHeadingFont::Width(std::string_view text) const
{
    return qRound(QFontMetricsF(m_font).horizontalAdvance(Text(text)));
}

int CHeadingFont::AverageWidth() const
{
    return qRound(QFontMetricsF(m_font).averageCharWidth());
}

int CHeadingFont::Ascent() const
{
    return qRound(QFontMetricsF(m_font).ascent());
}

int CHeadingFont::LineHeight() const
{
    return qRound(QFontMetricsF(m_font).height());
}

CPageJob::CPageJob(QPagedPaintDevice& device, int copies, CopiesTo to, const sPrintFonts& fonts)
    : m_device(device), m_copies(copies), m_to(to), m_page(m_painter, fonts.Panes), m_font(fonts.Heading)
{
}

bool CPageJob::StartDocument(const std::string& name)
{
    m_atFirstPage = !m_painter.isActive();
    if (!m_atFirstPage)
        return true;
    if (auto* const printer = dynamic_cast<QPrinter*>(&m_device))
        printer->setDocName(Text(name));
    else if (auto* const pdf = dynamic_cast<QPdfWriter*>(&m_device))
        pdf->setTitle(Text(name));
    return m_painter.begin(&m_device);
}

bool CPageJob::StartPage()
{
    const bool started = m_atFirstPage || m_device.newPage();
    m_atFirstPage = false;
    return started;
}

sPrintPage CPageJob::Page() const
{
    return {m_device.width(), m_device.height(), m_device.logicalDpiX(), m_device.logicalDpiY()};
}

void CPageJob::DrawHeading(const sHeading& heading)
{
    m_painter.save();
    m_painter.scale(m_device.logicalDpiX() / double(HeadingUnitsPerInch),
                    m_device.logicalDpiY() / double(HeadingUnitsPerInch));
    m_painter.setFont(m_font.Font());
    m_painter.setPen(Qt::black);
    // A picture as high as the page may have a dark title there, so the heading gets a white background.
    const int room = HeadingFontHeight / 2;
    m_painter.fillRect(heading.Left - room, 0, heading.Width + 2 * room, m_font.LineHeight(), Qt::white);
    for (const sHeadingRun& run : heading.Runs)
        m_painter.drawText(run.Left, m_font.Ascent(), Text(run.Text));
    m_painter.restore();
}

void CPageJob::EndDocument()
{
    if (m_to == CopiesTo::OwnDocuments && m_painter.isActive())
        m_painter.end();
}

bool CPageJob::Finish()
{
    return m_painter.isActive() && m_painter.end();
}

} // namespace zantroq
