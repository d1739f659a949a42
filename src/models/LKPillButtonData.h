#pragma once

#include "ILKButtonData.h"
#include "WFont.h"

#include <qqmlintegration.h>

/// The data of a button with round ends, attached to the button's item in QML. All lengths are in pixels.
///
/// Its font follows the application's font scale factor.
class LUMAKITQML_EXPORT LKPillButtonData : public ILKButtonData
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("")
    QML_ATTACHED(LKPillButtonData)
    // A QFont to QML, which knows its parts; the values are WFonts.
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(int leftPadding READ leftPadding WRITE setLeftPadding NOTIFY leftPaddingChanged)
    Q_PROPERTY(int rightPadding READ rightPadding WRITE setRightPadding NOTIFY rightPaddingChanged)
    Q_PROPERTY(int spacing READ spacing WRITE setSpacing NOTIFY spacingChanged)

public:
    explicit LKPillButtonData(QObject *parent = nullptr);
    ~LKPillButtonData() override;

    /// A new object, owned by the item.
    static LKPillButtonData *qmlAttachedProperties(QObject *object);

    WFont font() const;
    void setFont(const WFont &font);

    int leftPadding() const;
    void setLeftPadding(int leftPadding);

    int rightPadding() const;
    void setRightPadding(int rightPadding);

    /// Between icon and text.
    int spacing() const;
    void setSpacing(int spacing);

public Q_SLOTS:
    /// Sets all that follows from style and size again and looks the colour sets up. Emits buttonDataChanged().
    void refresh();

Q_SIGNALS:
    void fontChanged();
    void leftPaddingChanged();
    void rightPaddingChanged();
    void spacingChanged();

protected:
    void applySize() override;

private:
    WFont m_font;
    int m_leftPadding = 0;
    int m_rightPadding = 0;
    int m_spacing = 0;
};
