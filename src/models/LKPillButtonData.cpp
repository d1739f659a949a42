#include "LKPillButtonData.h"

#include "ButtonTables.h"
#include "WApplication.h"

namespace {

struct PillSize
{
    LKButtonSize::Size key;
    WFont::Token font;
    int height;
    int padding;
    int spacing;
    int icon;
};

constexpr auto PillSizes = std::to_array<PillSize>({
    {LKButtonSize::None, WFont::Default, 0, 0, 0, 0},
    {LKButtonSize::XL, WFont::SubheaderPrimary, 40, 16, 6, 20},
    {LKButtonSize::L, WFont::SubheaderPrimary, 32, 12, 6, 16},
    {LKButtonSize::M, WFont::SubheaderPrimary, 32, 12, 6, 16},
    {LKButtonSize::S, WFont::SubheaderSecondary, 28, 10, 4, 16},
    {LKButtonSize::XS, WFont::BodyTertiary, 24, 8, 4, 16},
    {LKButtonSize::XXS, WFont::BodyTertiary, 24, 8, 4, 16},
    {LKButtonSize::XXXS, WFont::BodyTertiary, 24, 8, 4, 16},
});
static_assert(ButtonTables::isIndexedByKey(PillSizes));

// The property gives a QFont. Qt would make a default font of it for C++ that asks for the WFont.
void letVariantsConvertToWFont()
{
    static const bool registered =
        QMetaType::hasRegisteredConverterFunction<QFont, WFont>() || QMetaType::registerConverter<QFont, WFont>();
    Q_UNUSED(registered)
}

} // namespace

LKPillButtonData::LKPillButtonData(QObject *parent)
    : ILKButtonData(parent)
{
    letVariantsConvertToWFont();
    if (auto *application = qobject_cast<WApplication *>(QCoreApplication::instance()))
        connect(application, &WApplication::fontScaleFactorChanged, this, &LKPillButtonData::refresh);
}

LKPillButtonData::~LKPillButtonData() = default;

LKPillButtonData *LKPillButtonData::qmlAttachedProperties(QObject *object)
{
    return new LKPillButtonData(object);
}

WFont LKPillButtonData::font() const
{
    return m_font;
}

void LKPillButtonData::setFont(const WFont &font)
{
    if (font == m_font)
        return;
    m_font = font;
    Q_EMIT fontChanged();
}

int LKPillButtonData::leftPadding() const
{
    return m_leftPadding;
}

void LKPillButtonData::setLeftPadding(int leftPadding)
{
    if (leftPadding == m_leftPadding)
        return;
    m_leftPadding = leftPadding;
    Q_EMIT leftPaddingChanged();
}

int LKPillButtonData::rightPadding() const
{
    return m_rightPadding;
}

void LKPillButtonData::setRightPadding(int rightPadding)
{
    if (rightPadding == m_rightPadding)
        return;
    m_rightPadding = rightPadding;
    Q_EMIT rightPaddingChanged();
}

int LKPillButtonData::spacing() const
{
    return m_spacing;
}

void LKPillButtonData::setSpacing(int spacing)
{
    if (spacing == m_spacing)
        return;
    m_spacing = spacing;
    Q_EMIT spacingChanged();
}

void LKPillButtonData::refresh()
{
    applyAll();
}

void LKPillButtonData::applySize()
{
    if (size() == LKButtonSize::None)
        return;
    // A value that is no size leaves the metrics, but the radius still follows the height: the ends stay round.
    const PillSize &metrics = ButtonTables::entry(PillSizes, size());
    if (metrics.key != LKButtonSize::None) {
        setFont(WFont(metrics.font, false));
        setHeight(metrics.height);
        setLeftPadding(metrics.padding);
        setRightPadding(metrics.padding);
        setSpacing(metrics.spacing);
        setIconSize({metrics.icon, metrics.icon});
    }
    setRadius(height() / 2);
}
