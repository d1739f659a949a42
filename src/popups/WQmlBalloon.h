#pragma once

#include <LumakitQmlExport.h>

#include <QColor>
#include <QPoint>
#include <QQuickPaintedItem>
#include <QRect>
#include <QSize>
#include <qqmlintegration.h>

QT_BEGIN_NAMESPACE
class QPainter;
class QPainterPath;
QT_END_NAMESPACE

/// Paints a speech balloon: a filled rectangle with a border, rounded corners and an arrow on one of its edges.
///
/// The outline is stroked on the edge of the item, whose bounds cut off the outer half of the border. The tip of the
/// arrow touches the item's edge. All lengths are in pixels.
class LUMAKITQML_EXPORT WQmlBalloon : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(WBalloon)
    Q_PROPERTY(ArrowAlignment arrowAlignment READ arrowAlignment WRITE setArrowAlignment NOTIFY arrowAlignmentChanged)
    Q_PROPERTY(ArrowAnchor arrowAnchor READ arrowAnchor WRITE setArrowAnchor NOTIFY arrowAnchorChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged)
    Q_PROPERTY(int arrowOffset READ arrowOffset WRITE setArrowOffset NOTIFY arrowOffsetChanged)
    // Written as a property these three do not repaint; they show with the next change of another one or of the size.
    Q_PROPERTY(int arrowSize MEMBER m_arrowSize NOTIFY arrowSizeChanged)
    Q_PROPERTY(int radius MEMBER m_radius NOTIFY radiusChanged)
    Q_PROPERTY(int borderWidth MEMBER m_borderWidth NOTIFY borderWidthChanged)

public:
    /// The edge that the arrow stands on.
    enum ArrowAnchor : int {
        None, ///< no arrow; the rectangle has the size of the item in whole pixels
        Top,
        Bottom,
        Left,
        Right,
    };
    Q_ENUM(ArrowAnchor)

    /// Where along its edge the arrow stands. A value that does not fit the edge is the centre.
    enum ArrowAlignment : int {
        LeftAlignment,
        CenterAlignment,
        RightAlignment,
        TopAlignment,
        BottomAlignment,
    };
    Q_ENUM(ArrowAlignment)

    explicit WQmlBalloon(QQuickItem *parent = nullptr);
    ~WQmlBalloon() override;

    // Each setter does nothing for the value that is there, else it emits the property's signal and repaints.

    ArrowAlignment arrowAlignment() const;
    void setArrowAlignment(ArrowAlignment alignment);

    ArrowAnchor arrowAnchor() const;
    void setArrowAnchor(ArrowAnchor anchor);

    /// The fill of body and arrow.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);

    QColor borderColor() const;
    void setBorderColor(const QColor &color);

    /// How far the tip stands right of or below its aligned position. The arrow stays clear of the corners.
    int arrowOffset() const;
    void setArrowOffset(int offset);

    /// The height of the arrow; its base is twice as long.
    int arrowSize() const;
    void setArrowSize(int size);

    /// 0 is a hairline of one device pixel.
    int borderWidth() const;
    void setBorderWidth(int width);

    /// The edge for an arrow of that direction; None for Qt::NoArrow and unknown values.
    static ArrowAnchor arrowAnchorFromArrowType(Qt::ArrowType type);
    /// The direction of an arrow on that edge; Qt::NoArrow for None and unknown values.
    static Qt::ArrowType arrowTypeFromArrowAnchor(ArrowAnchor anchor);
    /// The opposite edge; None for None and unknown values.
    static ArrowAnchor flipAnchor(ArrowAnchor anchor);

    /// The global position for a popup of that size whose arrow is to touch the item; (0, 0) without an item. The
    /// corner radius does not count here.
    static QPoint calcArrowPos(QQuickItem *item, const QSize &popupSize, ArrowAnchor anchor, ArrowAlignment alignment,
                               int arrowOffset, int arrowSize);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void arrowOffsetChanged();
    void arrowAlignmentChanged();
    void arrowAnchorChanged();
    void arrowSizeChanged();
    void backgroundColorChanged();
    void borderColorChanged();
    void borderWidthChanged();
    void radiusChanged();

private:
    static int getGlobalXCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &itemRect, int arrowOffset,
                                int arrowSize, int popupWidth);
    static int getGlobalYCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &itemRect, int arrowOffset,
                                int arrowSize, int popupHeight);
    double getXCenter(const QSizeF &size) const;
    double getYCenter(const QSizeF &size) const;
    double keepClearOfCorners(double tip, double edgeLength) const;
    QPainterPath outline(const QSizeF &size) const;

    ArrowAlignment m_arrowAlignment = CenterAlignment;
    ArrowAnchor m_arrowAnchor = Top;
    QColor m_backgroundColor = Qt::transparent;
    QColor m_borderColor = Qt::transparent;
    int m_arrowOffset = 0;
    int m_arrowSize = 10;
    int m_radius = 0;
    int m_borderWidth = 1;
};
