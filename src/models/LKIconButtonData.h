#pragma once

#include "LKButtonColors.h"
#include "LKButtonSize.h"
#include "LKButtonType.h"

#include <QSize>
#include <qqmlintegration.h>

class LKIconData;

/// The data of a button that is an icon only, attached to the button's item in QML. All lengths are in pixels.
///
/// The type chooses the colours and the icon, the size of the button its radius and the size of the icon.
class LUMAKITQML_EXPORT LKIconButtonData : public LKButtonColors
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("")
    QML_ATTACHED(LKIconButtonData)
    Q_MOC_INCLUDE("LKColorData.h")
    Q_MOC_INCLUDE("LKEventData.h")
    Q_MOC_INCLUDE("LKIconData.h")
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY onThemeTypeChanged)
    Q_PROPERTY(LKColorData *backgroundColorData READ backgroundColorData CONSTANT)
    Q_PROPERTY(LKColorData *borderColorData READ borderColorData CONSTANT)
    Q_PROPERTY(LKColorData *textColorData READ textColorData CONSTANT)
    Q_PROPERTY(LKIconData *iconData READ iconData CONSTANT)
    Q_PROPERTY(LKEventData *eventData READ eventData WRITE setEventData NOTIFY eventDataChanged)
    Q_PROPERTY(LKButtonType::Type type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize NOTIFY iconSizeChanged)
    Q_PROPERTY(LKButtonSize::Size buttonSize READ buttonSize WRITE setButtonSize NOTIFY buttonSizeChanged)
    Q_PROPERTY(bool border READ border WRITE setBorder NOTIFY borderChanged)
    Q_PROPERTY(int radius READ radius WRITE setRadius NOTIFY radiusChanged)

public:
    explicit LKIconButtonData(QObject *parent = nullptr);
    ~LKIconButtonData() override;

    /// A new object, owned by the item.
    static LKIconButtonData *qmlAttachedProperties(QObject *object);

    /// A child of this object; null, with a warning in the log, when somebody has deleted it.
    LKIconData *iconData() const;

    LKButtonType::Type type() const;
    /// None, and a value that is no type, clears colours, icon and border.
    void setType(LKButtonType::Type type);

    QSize iconSize() const;
    void setIconSize(const QSize &iconSize);

    LKButtonSize::Size buttonSize() const;
    /// The button is a circle as large as a round button of that size: its radius is half the edge of such a button,
    /// its icon as large. None, and a value that is no size, leaves both as they are.
    void setButtonSize(LKButtonSize::Size buttonSize);

    bool border() const override;
    void setBorder(bool border);

    int radius() const;
    void setRadius(int radius);

public Q_SLOTS:
    /// Sets all that follows from the type and the size of the button again and looks the colour sets up.
    void refresh();

Q_SIGNALS:
    void onThemeTypeChanged();
    void eventDataChanged();
    void typeChanged();
    void iconSizeChanged();
    void buttonSizeChanged();
    void borderChanged();
    void radiusChanged();

protected:
    void notifyThemeType() override;
    void notifyEventData() override;
    void updateState() override;

private:
    void applyType();
    void applyButtonSize();

    QPointer<LKIconData> m_iconData;
    LKButtonType::Type m_type = LKButtonType::None;
    LKButtonSize::Size m_buttonSize = LKButtonSize::None;
    QSize m_iconSize{0, 0};
    int m_radius = 0;
    bool m_border = false;
};
