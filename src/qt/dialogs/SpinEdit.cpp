#include "qt/dialogs/SpinEdit.h"

#include "platform/parse/LeadingNumber.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyleOptionSpinBox>

#include <algorithm>

namespace zantroq {
namespace {

constexpr int LongestText = 32;

} // namespace

CSpinEdit::CSpinEdit(QWidget* parent) : QAbstractSpinBox(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    lineEdit()->setMaxLength(LongestText);
    connect(lineEdit(), &QLineEdit::textChanged, this, &CSpinEdit::TextChanged);
}

QString CSpinEdit::Text() const
{
    return lineEdit()->text();
}

void CSpinEdit::SetText(const QString& text)
{
    const QSignalBlocker quiet(this);
    lineEdit()->setText(text);
}

bool CSpinEdit::TypeText(const QString& text)
{
    QString typed = text;
    int position = 0;
    if (text.length() > LongestText || validate(typed, position) != QValidator::Acceptable)
        return false;
    lineEdit()->selectAll();
    lineEdit()->insert(text);
    return true;
}

int CSpinEdit::Value() const
{
    return TextToInt(Text().toStdString());
}

void CSpinEdit::stepBy(int steps)
{
    const long long value = static_cast<long long>(Value()) + steps;
    const auto next = std::clamp<long long>(value, m_minimum, m_maximum);
    lineEdit()->setText(QString::number(next));
    selectAll();
}

QAbstractSpinBox::StepEnabled CSpinEdit::stepEnabled() const
{
    StepEnabled enabled = StepNone;
    if (Value() < m_maximum)
        enabled |= StepUpEnabled;
    if (Value() > m_minimum)
        enabled |= StepDownEnabled;
    return enabled;
}

QValidator::State CSpinEdit::validate(QString& text, int&) const
{
    if (!m_strict)
        return QValidator::Acceptable;
    if (text.isEmpty())
        return QValidator::Intermediate;
    const bool digits = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!digits || text.length() > QString::number(m_maximum).length() || text.toInt() > m_maximum)
        return QValidator::Invalid;
    return text.toInt() < m_minimum ? QValidator::Intermediate : QValidator::Acceptable;
}

void CSpinEdit::fixup(QString& text) const
{
    if (m_strict)
        text = QString::number(m_minimum);
}

QSize CSpinEdit::sizeHint() const
{
    ensurePolished();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const int height = lineEdit()->sizeHint().height();
    const int width = fontMetrics().horizontalAdvance("000000");
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, {width, height}, this);
}

} // namespace zantroq
