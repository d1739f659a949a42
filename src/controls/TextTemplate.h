#pragma once

#include "ThemedText.h"

#include <QPointer>

#include <QtQuick/private/qquickmousearea_p.h>
#include <QtQuick/private/qquicktext_p.h>

/// A Text in a colour of a colour set.
class TextTemplate : public ThemedText<QQuickText>
{
    Q_OBJECT
    Q_INTERFACES(AccessibleOnDemand)
    /// That of `textColors`, unless it is set.
    Q_PROPERTY(QColor color READ color WRITE setColor RESET resetColor NOTIFY colorChanged)
    Q_PROPERTY(StateColor *textColors READ textColors CONSTANT)
    /// An area over the text whose hover and press pick the colour, for texts that can be clicked.
    Q_PROPERTY(QQuickMouseArea *textMouseArea READ textMouseArea WRITE setTextMouseArea NOTIFY textMouseAreaChanged)
    /// Shown when the cursor rests on the text; its accessible name where it has no text.
    Q_PROPERTY(QString toolTipText READ toolTipText WRITE setToolTipText NOTIFY toolTipTextChanged)

public:
    explicit TextTemplate(QQuickItem *parent = nullptr);
    ~TextTemplate() override;

    QQuickMouseArea *textMouseArea() const;
    void setTextMouseArea(QQuickMouseArea *area);

    void setToolTipText(const QString &text);

Q_SIGNALS:
    void textMouseAreaChanged();
    void toolTipTextChanged();

protected:
    QStyle::State pointerState() const override;

private:
    QPointer<QQuickMouseArea> m_textMouseArea;
};
