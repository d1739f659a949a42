#pragma once

#include <QImage>
#include <QMetaMethod>
#include <QPainter>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQuickGraphicsConfiguration>
#include <QQuickPaintedItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <memory>
#include <vector>

/// What the tests of painted items share.
namespace PaintedItems {

/// The margin of a picture around the item, in logical pixels: what is painted outside the item is compared too.
constexpr int margin = 60;

/// Counts how often the scene graph asks for its picture, which it does from the render thread.
template<class Item> class Counted : public Item
{
public:
    using Item::Item;
    void paint(QPainter *painter) override
    {
        ++m_paints;
        Item::paint(painter);
    }
    int paints() const { return m_paints; }

private:
    std::atomic<int> m_paints = 0;
};

/// Counts the signals that a class declares itself.
class SignalCounts
{
public:
    SignalCounts(const QObject &object, const QMetaObject &meta)
    {
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal) {
                m_names << QString::fromLatin1(meta.method(i).name());
                m_spies.push_back(std::make_unique<QSignalSpy>(&object, meta.method(i)));
            }
        }
    }

    /// "radiusChanged 1" and the like, for what was emitted since the last call.
    QStringList take()
    {
        QStringList lines;
        for (size_t i = 0; i < m_spies.size(); ++i) {
            if (!m_spies[i]->isEmpty())
                lines << QStringLiteral("%1 %2").arg(m_names[qsizetype(i)]).arg(m_spies[i]->size());
            m_spies[i]->clear();
        }
        return lines;
    }

private:
    QStringList m_names;
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

/// A transparent image for an item of that size and its margin.
inline QImage canvas(const QSizeF &size, double scale)
{
    const QSizeF whole = (size + QSizeF(2 * margin, 2 * margin)) * scale;
    QImage image(qCeil(whole.width()), qCeil(whole.height()), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// From the item to that image.
inline QTransform toCanvas(double scale)
{
    return QTransform::fromScale(scale, scale).translate(margin, margin);
}

/// What the item paints, without a window.
inline QImage picture(QQuickPaintedItem &item, double scale = 1)
{
    QImage image = canvas(item.size(), scale);
    QPainter painter(&image);
    painter.setTransform(toCanvas(scale));
    item.paint(&painter);
    return image;
}

/// A pixel of a picture at scale 1, counted from the item's corner.
inline QColor pixel(const QImage &picture, int x, int y)
{
    return picture.pixelColor(x + margin, y + margin);
}

/// A window on the display with a white ground that shows the item.
class Stage
{
public:
    explicit Stage(QQuickItem &item)
    {
        QQuickGraphicsConfiguration configuration;
        configuration.setAutomaticPipelineCache(false); // a file that tests running side by side would fight for
        m_window.setGraphicsConfiguration(configuration);
        m_window.resize(300, 200);
        m_window.setColor(Qt::white);
        item.setParentItem(m_window.contentItem());
        m_window.show();
    }
    ~Stage()
    {
        const QList<QQuickItem *> items = m_window.contentItem()->childItems();
        for (QQuickItem *item : items)
            item->setParentItem(nullptr);
    }
    Q_DISABLE_COPY_MOVE(Stage)

    /// Until the window is on the screen and has drawn what there is to draw.
    bool isReady() { return QTest::qWaitForWindowExposed(&m_window) && !frame().isNull(); }

    /// Draws one frame now, with those items painted again that have asked for it.
    QImage frame() { return m_window.grabWindow(); }

private:
    QQuickWindow m_window;
};

/// Runs a statement of QML in the scope of the object.
inline void runQml(QObject *object, const QString &statement)
{
    QQmlEngine engine;
    QQmlExpression expression(engine.rootContext(), object, statement);
    expression.evaluate();
    QVERIFY2(!expression.hasError(), qPrintable(expression.error().toString()));
}

} // namespace PaintedItems
