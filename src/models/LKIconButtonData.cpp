#include "LKIconButtonData.h"

#include "ButtonTables.h"
#include "LKColorData.h"
#include "LKEventData.h"
#include "LKIconData.h"

#include <QDebug>

namespace {

struct IconTokens
{
    QStringView inactive;
    QStringView active;
};

struct IconType
{
    LKButtonType::Type key;
    QStringView background;
    IconTokens tokens;
    QStringView icon;
    QStringView checkedIcon = u"";
};

constexpr QStringView Background = u"interactiveicon-container-background";
constexpr IconTokens Filled{u"interactiveicon-primary-filled-icon-inactive",
                            u"interactiveicon-primary-filled-icon-active"};
constexpr IconTokens Favorite{u"interactiveicon-tertiary-filled-icon-inactive",
                              u"interactiveicon-tertiary-filled-favorite-icon-active"};
constexpr IconTokens Outline{u"interactiveicon-primary-outline-icon-inactive",
                             u"interactiveicon-primary-outline-icon-active"};

constexpr auto IconTypes = std::to_array<IconType>({
    {LKButtonType::None, {}, {}, {}},
    {LKButtonType::Settings, Background, Filled, u"settings-bold", u"settings-filled"},
    {LKButtonType::Favorite, Background, Favorite, u"favorite-bold", u"favorite-filled"},
    {LKButtonType::Attachment, Background, Outline, u"attachment-bold"},
    {LKButtonType::Emoji, Background, Filled, u"emoji-happy-bold"},
    {LKButtonType::Link, Background, Filled, u"link-bold"},
    {LKButtonType::Pen, Background, Filled, u"pen-bold"},
});
static_assert(ButtonTables::isIndexedByKey(IconTypes));

} // namespace

LKIconButtonData::LKIconButtonData(QObject *parent)
    : LKButtonColors(parent)
    , m_iconData(new LKIconData(this))
{
}

LKIconButtonData::~LKIconButtonData() = default;

LKIconButtonData *LKIconButtonData::qmlAttachedProperties(QObject *object)
{
    return new LKIconButtonData(object);
}

LKIconData *LKIconButtonData::iconData() const
{
    if (!m_iconData)
        qWarning() << "icon data was not created.";
    return m_iconData;
}

LKButtonType::Type LKIconButtonData::type() const
{
    return m_type;
}

void LKIconButtonData::setType(LKButtonType::Type type)
{
    if (type == m_type)
        return;
    m_type = type;
    Q_EMIT typeChanged();
    applyType();
}

QSize LKIconButtonData::iconSize() const
{
    return m_iconSize;
}

void LKIconButtonData::setIconSize(const QSize &iconSize)
{
    if (iconSize == m_iconSize)
        return;
    m_iconSize = iconSize;
    Q_EMIT iconSizeChanged();
}

LKButtonSize::Size LKIconButtonData::buttonSize() const
{
    return m_buttonSize;
}

void LKIconButtonData::setButtonSize(LKButtonSize::Size buttonSize)
{
    if (buttonSize == m_buttonSize)
        return;
    m_buttonSize = buttonSize;
    Q_EMIT buttonSizeChanged();
    applyButtonSize();
}

bool LKIconButtonData::border() const
{
    return m_border;
}

void LKIconButtonData::setBorder(bool border)
{
    if (border == m_border)
        return;
    m_border = border;
    Q_EMIT borderChanged();
}

int LKIconButtonData::radius() const
{
    return m_radius;
}

void LKIconButtonData::setRadius(int radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    Q_EMIT radiusChanged();
}

void LKIconButtonData::refresh()
{
    lookUpColorSets();
    applyType();
    applyButtonSize();
}

void LKIconButtonData::notifyThemeType()
{
    Q_EMIT onThemeTypeChanged();
}

void LKIconButtonData::notifyEventData()
{
    Q_EMIT eventDataChanged();
}

void LKIconButtonData::updateState()
{
    LKButtonColors::updateState();
    if (m_iconData)
        m_iconData->setEventData(eventData());
}

void LKIconButtonData::applyType()
{
    const IconType &values = ButtonTables::entry(IconTypes, m_type);
    setTokens(ButtonTables::text(values.background), QString(), ButtonTables::text(values.tokens.inactive));
    setActiveTextToken(ButtonTables::text(values.tokens.active));
    // True although the token of the border is empty: the border is there, in no colour.
    setBorder(!values.background.isEmpty());
    if (m_iconData)
        m_iconData->setIcons(ButtonTables::text(values.icon), ButtonTables::text(values.checkedIcon));
}

void LKIconButtonData::applyButtonSize()
{
    const ButtonTables::RoundSize &metrics = ButtonTables::entry(ButtonTables::RoundSizes, m_buttonSize);
    if (metrics.key == LKButtonSize::None)
        return;
    setIconSize({metrics.icon, metrics.icon});
    setRadius(metrics.edge / 2);
}
