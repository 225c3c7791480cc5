#include "control/ChartBody.h"

#include "conveniences/SymbolText.h"
#include "market/ManagerThreadHolder.h"
#include "qt/conveniences/ChartConveniences.h"
#include "qt/dialogs/MessageBox.h"
#include "qt/dialogs/PictureDialog.h"
#include "qt/dialogs/WindowDialogs.h"
#include "qt/output/ChartPicture.h"
#include "qt/output/ChartPrinter.h"
#include "qt/widgets/ChartView.h"
#include "studies/StudyFactory.h"
#include "window/ChartDlg.h"
#include "window/ManagerThreadFeed.h"

#include <QClipboard>
#include <QDynamicPropertyChangeEvent>
#include <QGuiApplication>

#include <algorithm>
#include <functional>
#include <utility>

namespace zantroq {
namespace {

// Ignores context menus: the chart window keeps them as data.
class CMenuAsData : public IContextMenu
{
public:
    void Open(const sContextMenu&, int, int) override {}
};

// The dynamic properties of a control with which a host switches the conveniences, and who listens to them.
constexpr const char* SwitchName = "Conveniences";
constexpr const char* ReconnectName = "ReconnectByItself";

class CSwitchWatch : public QObject
{
public:
    explicit CSwitchWatch(CChartBody& body) : m_body(body) {}

    bool eventFilter(QObject* control, QEvent* event) override
    {
        if (event->type() != QEvent::DynamicPropertyChange)
            return false;
        const QByteArray name = static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName();
        const QVariant value = control->property(name);
        if (name == SwitchName)
            m_body.SetConveniences(!value.isValid() || value.toBool());
        else if (name == ReconnectName)
            m_body.Layer().SetReconnectByItself(value.toBool());
        return false;
    }

private:
    CChartBody& m_body;
};

} // namespace

struct CChartBody::sServices
{
    sServices(QWidget& parent, const sChartCtrlSetup& setup)
        : Box(parent),
          Dialogs(parent, setup.FeedKey, setup.Box != nullptr ? *setup.Box : Box),
          Feed(ManagerThreadHolder())
    {
    }

    CMessageBox Box;
    CWindowDialogs Dialogs;
    CMenuAsData Menu;
    CManagerThreadFeed Feed;
    CStudyFactory Studies;
    std::unique_ptr<QObject> Switch;
};

CChartBody::CChartBody(const sChartCtrlSetup& setup) : m_setup(setup) {}

CChartBody::~CChartBody()
{
    if (m_window == nullptr)
        return;
    m_layer.reset();
    m_services->Dialogs.Drop();
    m_view->Detach();
    CManagerThreadHolder& holder = ManagerThreadHolder();
    // A window with an empty symbol box does not unwatch its series.
    CChartHistRequest* const series = m_window->Series();
    if (series != nullptr && holder.ControlCount() == 1)
        holder.UnwatchSymbol(*series);
    m_window->Destroy();
    holder.RemoveControl(nullptr); // the series is already unwatched and given up
}

std::unique_ptr<CChartCtrl> CChartBody::MakeControl(QWidget* parent, const sChartCtrlSetup& setup)
{
    return std::unique_ptr<CChartCtrl>(new CChartCtrl(parent, std::make_unique<CChartBody>(setup)));
}

void CChartBody::Create(CChartCtrl& control)
{
    m_control = &control;
    m_enabled = control.isEnabled(); // false in a disabled parent
    m_view = new CChartView(&control);
    control.setFocusProxy(m_view);
    control.setMinimumSize(120, 90);
    if (m_setup.ChartKey == nullptr)
        m_setup.ChartKey = OpenSettingsKey(ChartSettingsKey);
    if (m_setup.FeedKey == nullptr)
        m_setup.FeedKey = OpenSettingsKey(FeedSettingsKey);
    m_services = std::make_unique<sServices>(control, m_setup);
    ManagerThreadHolder().AddControl(m_setup.FeedKey);
    CreateWindow();
    m_services->Switch = std::make_unique<CSwitchWatch>(*this);
    control.installEventFilter(m_services->Switch.get());
    LayOut();
}

void CChartBody::CreateWindow()
{
    IMessageBox& box = m_setup.Box != nullptr ? *m_setup.Box : m_services->Box;
    IContextMenu& menu = m_setup.Popups ? static_cast<IContextMenu&>(m_view->Menu()) : m_services->Menu;
    m_window = std::make_unique<CChartDlg>(sChartDlgSetup{.Services = m_view->Services(box, menu),
                                                          .Key = *m_setup.ChartKey,
                                                          .Feed = m_services->Feed,
                                                          .Studies = &m_services->Studies,
                                                          .Dialogs = &m_services->Dialogs});
    // Without visible dialogs nobody could close one, so printing counts as cancelled.
    if (m_setup.Popups)
        m_services->Dialogs.Print = [this] {
            PrintWithDialog(*m_window, m_control, {Conveniences(), Notice()});
        };
    m_view->Attach(*m_window);
    m_view->Menu().Extend = [this](QMenu& popup) {
        if (!Conveniences())
            return;
        popup.addSeparator();
        popup.addAction("Copy picture", m_control, [this] { CopyPicture(); });
        popup.addAction("Save picture...", m_control, [this] { AskForPicture(); });
        for (const sToolbarCommand& row : ToolbarCommands) {
            if (*row.MenuText == '\0')
                continue;
            QAction* const item = popup.addAction(
                row.MenuText, m_control, [this, command = row.Command] { m_view->RunCommand(command); });
            item->setEnabled(m_view->MayRun(row.Command));
        }
    };
    m_window->Initialise();
    m_services->Box.SetConveniences(Conveniences());
    m_layer = std::make_unique<CChartConveniences>(*m_view, *m_window, m_services->Feed);
}

bool CChartBody::SetStockSymbol(const QString& symbol)
{
    const bool changed = symbol != m_symbol;
    m_symbol = symbol;
    const std::string text = symbol.toStdString();
    m_window->SetSymbol(Conveniences() ? TrimmedSymbol(text) : text);
    return changed;
}

bool CChartBody::ResizeParentWindow() const
{
    return m_window->ResizeParentWindow();
}

bool CChartBody::SetResizeParentWindow(bool resize)
{
    const bool changed = resize != m_window->ResizeParentWindow();
    m_window->SetResizeParentWindow(resize);
    return changed;
}

bool CChartBody::SetAppearance(int appearance)
{
    if (appearance == m_frame.Appearance || !sControlFrame::IsAppearance(appearance))
        return false;
    m_frame.Appearance = appearance;
    LayOut();
    return true;
}

bool CChartBody::SetBorderStyle(int borderStyle)
{
    if (borderStyle == m_frame.BorderStyle || !sControlFrame::IsBorderStyle(borderStyle))
        return false;
    m_frame.BorderStyle = borderStyle;
    LayOut();
    return true;
}

// Qt reports the change twice when a widget and its parent are both disabled; only a real change counts.
bool CChartBody::NoteEnabled(bool enabled)
{
    return std::exchange(m_enabled, enabled) != enabled;
}

void CChartBody::LayOut()
{
    const int frame = m_frame.Width();
    m_view->move(frame, frame);
    m_view->SetClientSize(std::max(0, m_control->width() - 2 * frame),
                          std::max(0, m_control->height() - 2 * frame));
    m_control->update();
}

bool CChartBody::Conveniences() const
{
    return m_view->Conveniences();
}

void CChartBody::SetConveniences(bool on)
{
    m_view->SetConveniences(on);
    m_services->Box.SetConveniences(on);
    m_layer->SetOn(on);
}

void CChartBody::UseFeed(std::shared_ptr<ISettingsKey> feedKey)
{
    if (feedKey == nullptr)
        return;
    m_setup.FeedKey = feedKey;
    m_services->Dialogs.SetFeedKey(feedKey);
    ManagerThreadHolder().Reconnect(std::move(feedKey));
}

void CChartBody::SetClientSize(const QSize& size)
{
    const int frame = m_frame.Width();
    m_control->resize(size + QSize(2 * frame, 2 * frame));
    m_view->SetClientSize(size.width(), size.height());
}

QString CChartBody::Notice() const
{
    return m_notice.isEmpty() ? m_layer->SimulatedNotice() : m_notice;
}

QImage CChartBody::Picture() const
{
    return DrawChartPicture({*m_window, m_view->size(), Notice(), Conveniences()},
                            m_view->devicePixelRatioF());
}

QString CChartBody::SavePicture(const QString& path) const
{
    return SaveChartPicture({*m_window, m_view->size(), Notice(), Conveniences()}, path,
                            m_view->devicePixelRatioF());
}

QString CChartBody::PrintToFile(const QString& path)
{
    return PrintToPdf(*m_window, path, {Conveniences(), Notice()});
}

void CChartBody::CopyPicture()
{
    const QImage picture = Picture();
    if (picture.isNull()) {
        Tell("Copy picture", QString("A picture of %1 x %2 pixels cannot be made; make the window smaller")
                                 .arg(m_view->width() * m_view->devicePixelRatioF())
                                 .arg(m_view->height() * m_view->devicePixelRatioF()));
        return;
    }
    QGuiApplication::clipboard()->setImage(picture);
}

void CChartBody::AskForPicture()
{
    const QString path =
        AskPicturePath(m_control, QString::fromStdString(m_window->CurrentSymbol()), m_pictureFolder);
    if (path.isEmpty())
        return;
    if (const QString wrong = SavePicture(path); !wrong.isEmpty())
        Tell("Save picture", wrong);
}

void CChartBody::Tell(const std::string& caption, const QString& sentence)
{
    m_window->Services().Box.Ask(sentence.toStdString(), caption, BoxButtons::Ok, BoxIcon::Error);
}

} // namespace zantroq
