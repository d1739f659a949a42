#include "ILKButtonData.h"

#include "ButtonTables.h"
#include "LKColorData.h"
#include "LKEventData.h"

namespace {

struct StyleTokens
{
    LKButtonStyle::Style key;
    QStringView background;
    QStringView text;
    QStringView border = u"";
};

constexpr auto StyleTable = std::to_array<StyleTokens>({
    {LKButtonStyle::None, {}, {}},
    {LKButtonStyle::Primary, u"button-primary-background", u"button-primary-text"},
    {LKButtonStyle::Secondary, u"button-secondary-background", u"button-secondary-text", u"button-secondary-border"},
    {LKButtonStyle::Ghost, u"button-ghost-background", u"button-ghost-text"},
    {LKButtonStyle::CancelGhost, u"button-cancel-ghost-background", u"button-cancel-ghost-text"},
    {LKButtonStyle::MessageGhost, u"button-message-ghost-background", u"button-message-ghost-text"},
    {LKButtonStyle::Join, u"button-join-fill-background", u"button-join-fill-text"},
    {LKButtonStyle::OutlineJoin, u"button-join-outline-background", u"button-join-outline-text",
     u"button-join-outline-border"},
    {LKButtonStyle::Cancel, u"button-cancel-fill-background", u"button-cancel-fill-text"},
    {LKButtonStyle::OutlineCancel, u"button-cancel-outline-background", u"button-cancel-outline-text",
     u"button-cancel-outline-border"},
    {LKButtonStyle::Message, u"button-message-fill-background", u"button-message-fill-text"},
    {LKButtonStyle::TeachingPrimary, u"coachmarkteaching-button-primary-background",
     u"coachmarkteaching-button-primary-text"},
    {LKButtonStyle::TeachingSecondary, u"coachmarkteaching-button-secondary-background",
     u"coachmarkteaching-button-secondary-text", u"coachmarkteaching-button-secondary-border"},
});
static_assert(ButtonTables::isIndexedByKey(StyleTable));

} // namespace

ILKButtonData::ILKButtonData(QObject *parent)
    : LKButtonColors(parent)
{
}

ILKButtonData::~ILKButtonData() = default;

LKButtonStyle::Style ILKButtonData::style() const
{
    return m_style;
}

void ILKButtonData::setStyle(LKButtonStyle::Style style)
{
    if (style == m_style)
        return;
    m_style = style;
    Q_EMIT styleChanged();
    applyStyle();
    Q_EMIT buttonDataChanged();
}

LKButtonSize::Size ILKButtonData::size() const
{
    return m_size;
}

void ILKButtonData::setSize(LKButtonSize::Size size)
{
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged();
    applySize();
    Q_EMIT buttonDataChanged();
}

QSize ILKButtonData::iconSize() const
{
    return m_iconSize;
}

void ILKButtonData::setIconSize(const QSize &iconSize)
{
    if (iconSize == m_iconSize)
        return;
    m_iconSize = iconSize;
    Q_EMIT iconSizeChanged();
}

int ILKButtonData::height() const
{
    return m_height;
}

void ILKButtonData::setHeight(int height)
{
    if (height == m_height)
        return;
    m_height = height;
    Q_EMIT heightChanged();
}

bool ILKButtonData::border() const
{
    return m_border;
}

void ILKButtonData::setBorder(bool border)
{
    if (border == m_border)
        return;
    m_border = border;
    Q_EMIT borderChanged();
}

int ILKButtonData::radius() const
{
    return m_radius;
}

void ILKButtonData::setRadius(int radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    Q_EMIT radiusChanged();
}

void ILKButtonData::notifyThemeType()
{
    Q_EMIT onThemeTypeChanged();
}

void ILKButtonData::notifyEventData()
{
    Q_EMIT eventDataChanged();
}

void ILKButtonData::applySize() { }

void ILKButtonData::applyAll()
{
    lookUpColorSets();
    applyStyle();
    applySize();
    Q_EMIT buttonDataChanged();
}

void ILKButtonData::applyStyle()
{
    const StyleTokens &tokens = ButtonTables::entry(StyleTable, m_style);
    if (tokens.key == LKButtonStyle::None)
        return;
    setTokens(ButtonTables::text(tokens.background), ButtonTables::text(tokens.border),
              ButtonTables::text(tokens.text));
    setBorder(!tokens.border.isEmpty());
}
