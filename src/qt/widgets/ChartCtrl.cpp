#include "qt/widgets/ChartCtrl.h"

#include "market/ManagerThreadHolder.h"
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
#include <QGuiApplication>

#include <functional>

namespace zantroq {
namespace {

// Context menus that nobody sees: the chart window keeps them as data.
class CMenuAsData : public IContextMenu
{
public:
    void Open(const sContextMenu&, int, int) override {}
};

} // namespace

struct CChartCtrl::sServices
{
    explicit sServices(QWidget& parent) : Box(parent), Dialogs(parent), Feed(ManagerThreadHolder()) {}

    CMessageBox Box;
    CWindowDialogs Dialogs;
    CMenuAsData Menu;
    CManagerThreadFeed Feed;
    CStudyFactory Studies;
};

CChartCtrl::CChartCtrl(QWidget* parent, const sChartCtrlSetup& setup)
    : QWidget(parent),
      m_view(new CChartView(this)),
      m_chartKey(setup.ChartKey),
      m_services(std::make_unique<sServices>(*this))
{
    setFocusProxy(m_view);
    setMinimumSize(120, 90);
    if (m_chartKey == nullptr)
        m_chartKey = OpenSettingsKey(ChartSettingsKey);
    ManagerThreadHolder().AddControl(setup.FeedKey != nullptr
                                         ? setup.FeedKey
                                         : std::shared_ptr<ISettingsKey>(OpenSettingsKey(FeedSettingsKey)));
    IMessageBox& box = setup.Box != nullptr ? *setup.Box : m_services->Box;
    IContextMenu& menu = setup.Popups ? static_cast<IContextMenu&>(m_view->Menu()) : m_services->Menu;
    m_window = std::make_unique<CChartDlg>(sChartDlgSetup{.Services = m_view->Services(box, menu),
                                                          .Key = *m_chartKey,
                                                          .Feed = m_services->Feed,
                                                          .Studies = &m_services->Studies,
                                                          .Dialogs = &m_services->Dialogs});
    // Where nobody sees a dialog, nobody can close it: it counts as cancelled.
    if (setup.Popups)
        m_services->Dialogs.Print = [this] { PrintWithDialog(*m_window, this); };
    m_view->Attach(*m_window);
    m_view->Menu().Extend = [this](QMenu& popup) {
        if (!Conveniences())
            return;
        popup.addSeparator();
        popup.addAction("Copy picture", this, &CChartCtrl::CopyPicture);
        popup.addAction("Save picture...", this, &CChartCtrl::AskForPicture);
        QAction* const print =
            popup.addAction("Print...", this, [this] { m_view->RunCommand(CommandPrint); });
        print->setEnabled(m_view->MayRun(CommandPrint));
    };
    m_window->Initialise();
}

CChartCtrl::~CChartCtrl()
{
    m_services->Dialogs.Drop();
    m_view->Detach();
    m_window->Destroy();
    ManagerThreadHolder().RemoveControl(nullptr); // Destroy has unwatched the series
}

void CChartCtrl::SetStockSymbol(const QString& symbol)
{
    m_symbol = symbol;
    m_window->SetSymbol(symbol.toStdString());
    emit StockSymbolChanged(symbol);
}

bool CChartCtrl::ResizeParentWindow() const
{
    return m_window->ResizeParentWindow();
}

void CChartCtrl::SetResizeParentWindow(bool resize)
{
    m_window->SetResizeParentWindow(resize);
}

bool CChartCtrl::Conveniences() const
{
    return m_view->Conveniences();
}

void CChartCtrl::SetConveniences(bool on)
{
    m_view->SetConveniences(on);
}

void CChartCtrl::SetClientSize(const QSize& size)
{
    resize(size);
    m_view->SetClientSize(size.width(), size.height());
}

void CChartCtrl::resizeEvent(QResizeEvent*)
{
    m_view->SetClientSize(width(), height());
}

QImage CChartCtrl::Picture() const
{
    return DrawChartPicture({*m_window, m_view->size(), m_notice}, devicePixelRatioF());
}

QString CChartCtrl::SavePicture(const QString& path) const
{
    return SaveChartPicture({*m_window, m_view->size(), m_notice}, path, devicePixelRatioF());
}

QString CChartCtrl::PrintToFile(const QString& path)
{
    return PrintToPdf(*m_window, path);
}

void CChartCtrl::CopyPicture()
{
    const QImage picture = Picture();
    if (picture.isNull()) {
        Tell("Copy picture", QString("A picture of %1 x %2 pixels cannot be made; make the window smaller")
                                 .arg(width() * devicePixelRatioF())
                                 .arg(height() * devicePixelRatioF()));
        return;
    }
    QGuiApplication::clipboard()->setImage(picture);
}

void CChartCtrl::AskForPicture()
{
    const QString path =
        AskPicturePath(this, QString::fromStdString(m_window->CurrentSymbol()), m_pictureFolder);
    if (path.isEmpty())
        return;
    if (const QString wrong = SavePicture(path); !wrong.isEmpty())
        Tell("Save picture", wrong);
}

void CChartCtrl::Tell(const std::string& caption, const QString& sentence)
{
    m_window->Services().Box.Ask(sentence.toStdString(), caption, BoxButtons::Ok, BoxIcon::Error);
}

} // namespace zantroq
