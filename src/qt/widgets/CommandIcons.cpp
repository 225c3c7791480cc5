#include "qt/widgets/CommandIcons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

// Outside any namespace, as Q_INIT_RESOURCE requires; in a static library the initialiser must be called.
static void LoadResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace zantroq {
namespace {

class CDrawingEngine : public QIconEngine
{
public:
    CDrawingEngine(QByteArray drawing, QColor ink, QColor faint)
        : m_drawing(std::move(drawing)), m_ink(ink), m_faint(faint)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        QByteArray drawing = m_drawing;
        drawing.replace("currentColor", (mode == QIcon::Disabled ? m_faint : m_ink).name().toLatin1());
        QSvgRenderer renderer(drawing);
        if (mode == QIcon::Disabled)
            painter->setOpacity(0.55); // dims the colored strokes too
        renderer.render(painter, rect);
        painter->setOpacity(1);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new CDrawingEngine(*this); }

private:
    QByteArray m_drawing;
    QColor m_ink, m_faint;
};

} // namespace

QIcon NamedIcon(const QString& name, const QPalette& palette)
{
    LoadResources();
    QFile file(QString(":/zantroq/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new CDrawingEngine(file.readAll(), palette.color(QPalette::Active, QPalette::ButtonText),
                                    palette.color(QPalette::Disabled, QPalette::ButtonText)));
}

} // namespace zantroq
