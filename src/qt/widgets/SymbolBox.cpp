#include "qt/widgets/SymbolBox.h"

#include "conveniences/SymbolText.h"
#include "qt/widgets/BarFont.h"
#include "window/WindowTexts.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <utility>

namespace zantroq {

CSymbolBox::CSymbolBox(QWidget* parent) : QComboBox(parent)
{
    setFont(BarFont());
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setMaxVisibleItems(20);
    setAccessibleName("Symbol");
    setToolTip("Symbol");
    lineEdit()->setPlaceholderText("Symbol");
    lineEdit()->setAccessibleName("Symbol");
    connect(lineEdit(), &QLineEdit::textEdited, this, &CSymbolBox::OnEdited);
    connect(this, &QComboBox::activated, this, [this](int item) {
        m_selection = item;
        OnChanged();
        // An arrow key steps through the symbols without a list; it draws none of them.
        if (std::exchange(m_picking, false) && m_conveniences)
            OnEnter();
    });
}

std::string CSymbolBox::Text() const
{
    const std::string text = currentText().toStdString();
    return m_conveniences ? TrimmedSymbol(text) : text;
}

void CSymbolBox::SetText(const std::string& text)
{
    const QSignalBlocker quiet(this), quietLine(lineEdit());
    m_selection = -1;
    setCurrentIndex(-1);
    setEditText(QString::fromStdString(text));
}

std::vector<std::string> CSymbolBox::Items() const
{
    std::vector<std::string> items;
    for (int item = 0; item < count(); ++item)
        items.push_back(itemText(item).toStdString());
    return items;
}

void CSymbolBox::SetItems(const std::vector<std::string>& items)
{
    const QSignalBlocker quiet(this), quietLine(lineEdit());
    const QString text = currentText();
    clear();
    for (const std::string& item : items)
        addItem(QString::fromStdString(item));
    m_selection = -1;
    setCurrentIndex(-1);
    setEditText(text);
}

void CSymbolBox::Select(int item)
{
    const QSignalBlocker quiet(this), quietLine(lineEdit());
    setCurrentIndex(item);
    m_selection = currentIndex();
    if (m_selection >= 0)
        setEditText(itemText(m_selection));
}

void CSymbolBox::FocusAtEnd()
{
    setFocus(Qt::OtherFocusReason);
    lineEdit()->deselect();
    lineEdit()->end(false);
}

void CSymbolBox::TypeText(const QString& text)
{
    {
        const QSignalBlocker quiet(this), quietLine(lineEdit());
        lineEdit()->setText(text);
    }
    OnEdited(text);
}

void CSymbolBox::OnEdited(const QString& typed)
{
    const int caret = lineEdit()->cursorPosition();
    const QString kept = QString::fromStdString(SymbolBoxText(
        typed.toStdString(), lineEdit()->hasSelectedText() ? TypedOver::Selection : TypedOver::Nothing));
    {
        const QSignalBlocker quiet(this), quietLine(lineEdit());
        setCurrentIndex(-1);
        lineEdit()->setText(kept);
    }
    lineEdit()->setCursorPosition(std::min(caret, static_cast<int>(kept.size())));
    m_selection = -1;
    OnChanged();
}

void CSymbolBox::showPopup()
{
    m_picking = true;
    QComboBox::showPopup();
}

// The wheel would change the symbol.
void CSymbolBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

// The box has the keyboard focus and passes key events to its edit line.
void CSymbolBox::keyPressEvent(QKeyEvent* event)
{
    m_picking = false;
    if (event->key() == Qt::Key_Escape && m_conveniences) {
        event->accept();
        return OnEscape();
    }
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return QComboBox::keyPressEvent(event);
    event->accept();
    if (!event->isAutoRepeat()) // draws only one chart while the key is held
        OnEnter();
    lineEdit()->selectAll(); // so that typing starts a new symbol
}

} // namespace zantroq
