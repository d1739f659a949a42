#pragma once

#include <LumakitQmlExport.h>

#include <QColor>
#include <QQuickPaintedItem>
#include <qqmlintegration.h>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

/// Paints a bar with one end round and the other square: half of a pill, two of which make a split button. Each side
/// has a border or not, so that two halves share an edge without a doubled line. All lengths are in pixels.
class LUMAKITQML_EXPORT WQmlHalfPill : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(WHalfPill)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged)
    // The rest does not repaint; it shows with the next colour that is set or the next change of the size.
    Q_PROPERTY(bool borderBottom MEMBER m_borderBottom NOTIFY borderChanged)
    Q_PROPERTY(bool borderLeft MEMBER m_borderLeft NOTIFY borderChanged)
    Q_PROPERTY(bool borderRight MEMBER m_borderRight NOTIFY borderChanged)
    Q_PROPERTY(bool borderTop MEMBER m_borderTop NOTIFY borderChanged)
    Q_PROPERTY(int borderWidth MEMBER m_borderWidth NOTIFY borderChanged)
    Q_PROPERTY(RoundEdge edge MEMBER m_edge NOTIFY edgeChanged)

public:
    /// The end that is round.
    enum RoundEdge : int {
        Left,
        Right,
        None, ///< both ends are square; so they are for unknown values
    };
    Q_ENUM(RoundEdge)

    explicit WQmlHalfPill(QQuickItem *parent = nullptr);
    ~WQmlHalfPill() override;

    QColor backgroundColor() const;
    /// Emits and repaints whether or not the colour is another one.
    void setBackgroundColor(const QColor &color);

    QColor borderColor() const;
    /// Emits and repaints whether or not the colour is another one.
    void setBorderColor(const QColor &color);

    void paint(QPainter *painter) override;

    /// Fills the round end of an item of that size; nothing when both ends are square.
    void drawSemiCircle(QPainter *painter, const QSizeF &size) const;
    /// Fills the bar up to the round end. On the left the fill runs past the item, which cuts it off.
    void drawRect(QPainter *painter, const QSizeF &size) const;
    /// Draws the borders of the sides that are asked for; the round end takes the place of its side. A width of 0 is a
    /// hairline of one device pixel.
    void drawBorders(QPainter *painter, const QSizeF &size, const QColor &color, int width, bool left, bool top,
                     bool right, bool bottom) const;

Q_SIGNALS:
    void backgroundColorChanged();
    void borderColorChanged();
    void borderChanged();
    void edgeChanged();

private:
    QColor m_backgroundColor = Qt::transparent;
    QColor m_borderColor = Qt::transparent;
    bool m_borderBottom = true;
    bool m_borderLeft = true;
    bool m_borderRight = true;
    bool m_borderTop = true;
    int m_borderWidth = 1;
    RoundEdge m_edge = Left;
};
