#include "ControlState.h"

#include "IWApplication.h"
#include "StateColor.h"

#include <QCoreApplication>
#include <QJSValue>
#include <QPointer>
#include <QQmlProperty>

#include <array>
#include <utility>

namespace {

struct Flag
{
    const char *name;
    QStyle::StateFlag flag;
};

constexpr std::array Flags{
    Flag{"enabled", QStyle::State_Enabled},      Flag{"readOnly", QStyle::State_ReadOnly},
    Flag{"pressed", QStyle::State_Sunken},       Flag{"hovered", QStyle::State_MouseOver},
    Flag{"activeFocus", QStyle::State_HasFocus}, Flag{"checked", QStyle::State_On},
};

QVariant valueOf(const QVariant &target, const char *name)
{
    if (const auto *object = target.value<QObject *>())
        return object->property(name);
    if (target.metaType() == QMetaType::fromType<QJSValue>())
        return target.value<QJSValue>().property(QLatin1StringView(name)).toVariant();
    return target.toMap().value(QLatin1StringView(name));
}

bool isNull(const QVariant &target)
{
    if (target.metaType() == QMetaType::fromType<QJSValue>())
        return !target.value<QJSValue>().isObject();
    return target.isNull();
}

ControlState *firstState = nullptr;
ControlState *lastState = nullptr;
ControlState *nextState = nullptr; // the one whose turn it is in a change of the theme; any may go during one

} // namespace

class ControlState::Target : public QObject
{
    Q_OBJECT

public:
    Target(ControlState *state, const QVariant &value)
        : m_state(state)
        , m_value(value)
    {
        read();
        if (auto *object = value.value<QObject *>())
            watch(object);
    }

    QVariant value() const { return m_value; }
    QStyle::State state() const { return m_flags; }

    /// Its changes no longer count; it may be the one that calls.
    void retire()
    {
        m_state = nullptr;
        deleteLater();
    }

private:
    void watch(QObject *object)
    {
        for (const Flag &flag : Flags)
            QQmlProperty(object, QLatin1StringView(flag.name)).connectNotifySignal(this, SLOT(onFlagChanged()));
        connect(object, &QObject::destroyed, this, [this] {
            if (m_state)
                m_state->setTarget({});
        });
    }

    // What has no such flag is enabled, and nothing else.
    void read()
    {
        for (const Flag &flag : Flags) {
            const QVariant value = valueOf(m_value, flag.name);
            m_flags.setFlag(flag.flag, value.isValid() ? value.toBool() : flag.flag == QStyle::State_Enabled);
        }
    }

    Q_SLOT void onFlagChanged()
    {
        if (!m_state)
            return;
        read();
        m_state->refreshColors();
    }

    ControlState *m_state;
    QVariant m_value;
    QStyle::State m_flags;
};

ControlState::ControlState(User *user)
    : m_user(user)
    , m_previous(std::exchange(lastState, this))
{
    (m_previous ? m_previous->m_next : firstState) = this;

    static QPointer<IWApplication> watched;
    auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance());
    if (application && application != watched) {
        watched = application;
        QObject::connect(application, &IWApplication::themeModeChanged, application, &ControlState::onThemeModeChanged);
    }
}

ControlState::~ControlState()
{
    if (nextState == this)
        nextState = m_next;
    (m_previous ? m_previous->m_next : firstState) = m_next;
    (m_next ? m_next->m_previous : lastState) = m_previous;
}

QVariant ControlState::themeType() const
{
    if (m_themeType.isValid())
        return m_themeType;
    const auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance());
    return application ? application->getThemeMode() : QString();
}

void ControlState::setThemeType(const QVariant &themeType)
{
    if (themeType == m_themeType)
        return;
    m_themeType = themeType;
    refreshColorSets();
}

QVariant ControlState::target() const
{
    return m_target ? m_target->value() : QVariant::fromValue(nullptr);
}

void ControlState::setTarget(const QVariant &target)
{
    if (m_target)
        m_target.release()->retire();
    if (!isNull(target))
        m_target = std::make_unique<Target>(this, target);
    refreshColors();
}

QStyle::State ControlState::state() const
{
    return m_target ? m_target->state() : m_ownState;
}

void ControlState::setState(QStyle::State state)
{
    if (state == m_ownState)
        return;
    m_ownState = state;
    if (!m_target)
        refreshColors();
}

void ControlState::add(StateColor *color)
{
    m_colors.append(color);
}

void ControlState::showColors()
{
    m_user->showColors();
}

void ControlState::refreshColorSets()
{
    bool isOther = false;
    for (StateColor *color : std::as_const(m_colors))
        isOther |= color->onThemeTypeChanged();
    if (isOther)
        showColors();
}

void ControlState::refreshColors()
{
    bool isOther = false;
    for (StateColor *color : std::as_const(m_colors))
        isOther |= color->refreshColor();
    if (isOther)
        showColors();
}

void ControlState::onThemeModeChanged()
{
    nextState = firstState;
    while (ControlState *state = nextState) {
        nextState = state->m_next;
        if (!state->m_themeType.isValid())
            state->refreshColorSets();
    }
}

#include "ControlState.moc"
