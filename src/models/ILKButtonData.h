#pragma once

#include "LKButtonColors.h"
#include "LKButtonSize.h"
#include "LKButtonStyle.h"

#include <QSize>

/// What the data of buttons with a text have in common. All lengths are in pixels.
///
/// The style chooses the colours and whether there is a border. The size chooses the metrics, which differ by kind of
/// button. After either has been carried through to all values, buttonDataChanged() follows once.
class LUMAKITQML_EXPORT ILKButtonData : public LKButtonColors
{
    Q_OBJECT
    Q_MOC_INCLUDE("LKColorData.h")
    Q_MOC_INCLUDE("LKEventData.h")
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY onThemeTypeChanged)
    Q_PROPERTY(LKColorData *backgroundColorData READ backgroundColorData NOTIFY buttonDataChanged)
    Q_PROPERTY(LKColorData *borderColorData READ borderColorData NOTIFY buttonDataChanged)
    Q_PROPERTY(LKColorData *textColorData READ textColorData NOTIFY buttonDataChanged)
    Q_PROPERTY(LKEventData *eventData READ eventData WRITE setEventData NOTIFY eventDataChanged)
    Q_PROPERTY(LKButtonStyle::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(LKButtonSize::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize NOTIFY iconSizeChanged)
    Q_PROPERTY(int height READ height WRITE setHeight NOTIFY heightChanged)
    Q_PROPERTY(bool border READ border WRITE setBorder NOTIFY borderChanged)
    Q_PROPERTY(int radius READ radius WRITE setRadius NOTIFY radiusChanged)

public:
    explicit ILKButtonData(QObject *parent = nullptr);
    ~ILKButtonData() override;

    LKButtonStyle::Style style() const;
    /// None, and a value that is no style, leaves colours and border as they are.
    void setStyle(LKButtonStyle::Style style);

    LKButtonSize::Size size() const;
    void setSize(LKButtonSize::Size size);

    QSize iconSize() const;
    void setIconSize(const QSize &iconSize);

    int height() const;
    void setHeight(int height);

    bool border() const override;
    void setBorder(bool border);

    int radius() const;
    void setRadius(int radius);

Q_SIGNALS:
    void onThemeTypeChanged();
    void eventDataChanged();
    void styleChanged();
    void sizeChanged();
    void iconSizeChanged();
    void heightChanged();
    void borderChanged();
    void radiusChanged();
    void buttonDataChanged();

protected:
    void notifyThemeType() override;
    void notifyEventData() override;

    /// Sets what follows from the size; nothing here.
    virtual void applySize();
    /// Sets all that follows from style and size again, over what has been set since, and looks the colour sets up.
    void applyAll();

private:
    void applyStyle();

    LKButtonStyle::Style m_style = LKButtonStyle::None;
    LKButtonSize::Size m_size = LKButtonSize::None;
    QSize m_iconSize{0, 0};
    int m_height = 0;
    int m_radius = 0;
    bool m_border = false;
};
