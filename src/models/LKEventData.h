#pragma once

#include "WObject.h"

#include <QVarLengthArray>
#include <qqmlintegration.h>

class LKButtonColors;

/// The interaction state of a button: flags that the button's component sets. All are false at first, so a button that
/// nobody enables shows as disabled.
class LUMAKITQML_EXPORT LKEventData : public WObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool hovered READ hovered WRITE setHovered NOTIFY hoveredChanged)
    Q_PROPERTY(bool activeFocus READ activeFocus WRITE setActiveFocus NOTIFY activeFocusChanged)
    Q_PROPERTY(bool checked READ checked WRITE setChecked NOTIFY checkedChanged)
    Q_PROPERTY(bool pressed READ pressed WRITE setPressed NOTIFY pressedChanged)

public:
    explicit LKEventData(QObject *parent = nullptr);
    ~LKEventData() override;

    bool enabled() const;
    void setEnabled(bool enabled);

    bool hovered() const;
    void setHovered(bool hovered);

    bool activeFocus() const;
    void setActiveFocus(bool activeFocus);

    bool checked() const;
    void setChecked(bool checked);

    bool pressed() const;
    void setPressed(bool pressed);

Q_SIGNALS:
    void enabledChanged();
    void hoveredChanged();
    void activeFocusChanged();
    void checkedChanged();
    void pressedChanged();

private:
    void setFlag(bool &flag, bool value, void (LKEventData::*changed)());

    bool m_enabled = false;
    bool m_hovered = false;
    bool m_activeFocus = false;
    bool m_checked = false;
    bool m_pressed = false;

    // Each of them would take seven connections, in every button of a screen.
    QVarLengthArray<LKButtonColors *, 1> m_users;
    friend class LKButtonColors;
};
