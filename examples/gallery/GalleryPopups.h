#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>

class WPopupQuickView;
class WQmlPopupController;

/// Opens the gallery's popups, one at a time, beside the item that asks for it.
class GalleryPopups : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Popups)
    QML_SINGLETON

public:
    enum Kind : int {
        Menu,
        Dialog,
        ToolTip,
    };
    Q_ENUM(Kind)

    using QObject::QObject;
    ~GalleryPopups() override;

    /// Shows a popup with its arrow at the item, whose property "open" is true meanwhile. One that is open there
    /// already follows the item to where it is now. It closes with the item.
    Q_INVOKABLE void show(GalleryPopups::Kind kind, QQuickItem *opener, Qt::ArrowType arrow);
    /// The popup that is open takes the keyboard, and closes when it loses it.
    Q_INVOKABLE void activate();
    Q_INVOKABLE void hide();
    /// For the popups: reports the choice and closes.
    Q_INVOKABLE void choose(const QString &text);

    /// Null while none is open.
    WPopupQuickView *view() const;

Q_SIGNALS:
    void chosen(const QString &text);

private:
    void open();
    void place();

    Kind m_kind = Menu;
    Qt::ArrowType m_arrow = Qt::NoArrow;
    QPointer<QQuickItem> m_opener;
    QPointer<WPopupQuickView> m_view;
    QPointer<WQmlPopupController> m_controller;
};
