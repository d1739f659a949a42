#pragma once

#include "WQuickView.h"

#include <QQuickItem>
#include <QRectF>

class QWidget;

/// A popup window that stands beside what opened it, with an arrow that points at it.
///
/// It remembers a global activation rectangle and the direction of its arrow, flips the arrow where it would leave the
/// screen, and says how far the arrow has to slide along its edge. The arrow itself is drawn by the popup's QML, fed by
/// a WQmlPopupController. An activation item can be marked as open while the popup lives.
class LUMAKITQML_EXPORT WPopupQuickView : public WQuickView
{
    Q_OBJECT

public:
    enum Alignment : int {
        BottomAlignment, ///< under the widget, centred
    };
    Q_ENUM(Alignment)

    /// A plain view, without the flags of a popup.
    explicit WPopupQuickView(QWindow *parent = nullptr);
    /// A popup window with a transparent background.
    WPopupQuickView(WQmlEngine *engine, QWindow *parent, const ViewOptions &options);
    /// Gives the focus back to the activation item's window, and unmarks the item.
    ~WPopupQuickView() override;

    void showAtRect(const QRectF &rect, Qt::ArrowType arrow);
    void showAtWidget(QWidget *widget, Qt::ArrowType arrow);

    /// Shows the popup beside a global rectangle, and again whenever its size across the arrow's axis changes. While
    /// the application is not active it is not shown. A second call replaces the first.
    void setActivationRectAndShow(const QRectF &rect, Qt::ArrowType arrow);
    /// Beside the widget's geometry; a null widget counts as a null rectangle.
    void setActivationRectAndShow(QWidget *widget, Qt::ArrowType arrow);
    QRectF activationRect() const;

    /// How far the arrow slides along its edge, pixels: positive to the right or down. The view itself does not move.
    int adjustArrowOffset(Qt::ArrowType arrow);

    /// The popup's global top-left corner beside a rectangle.
    QPointF getPointFromRect(const QRectF &rect, Qt::ArrowType arrow) const;
    QPointF getPointFromWidget(QWidget *widget, Qt::ArrowType arrow) const;

    /// Moves the popup under the widget, kept on its screen.
    void setPositionFromWidget(const QWidget *widget, Alignment alignment);

    /// Sets the item's boolean property to true until the popup is destroyed; an empty name sets none. An item that was
    /// set up before is unmarked first. A property that cannot be set is warned about.
    void setupActivationItem(QQuickItem *item, const QString &propertyName);
    bool hasActivationItem(QQuickItem *item) const;

    /// Hands this view to its WQmlPopupController, if it has one.
    void setControllerView();

Q_SIGNALS:
    /// The popup stands on the other side; `arrow` is the new direction.
    void arrowFlipped(Qt::ArrowType arrow);
    /// The popup was placed, or moved across the arrow's axis: ask adjustArrowOffset() again.
    void arrowOrthogonalChanged();

private Q_SLOTS:
    void showFrom(Qt::ArrowType arrow);

private:
    static Qt::ArrowType flipArrow(Qt::ArrowType arrow);
    bool shouldFlipArrow(Qt::ArrowType arrow);
    QPointF getPointFromActivationRect(Qt::ArrowType arrow);
    std::pair<QRectF, QRectF> getScreenAndPopupViewRects(Qt::ArrowType arrow);

    QPointer<QQuickItem> m_activationItem;
    QString m_activationPropertyName;
    QRectF m_activationRect;
};
