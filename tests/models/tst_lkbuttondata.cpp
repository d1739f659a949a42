#include "ButtonTheme.h"
#include "MetaDescription.h"
#include "SignalLog.h"

#include <ILKButtonData.h>
#include <LKButtonType.h>
#include <LKColorData.h>
#include <LKEventData.h>
#include <TestCase.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QColor Transparent(u"transparent"_s);

} // namespace

/// What all buttons with a text have in common.
class tst_LKButtonData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void enums();
    void metaObject();
    void defaults();
    void style_data();
    void style();
    void styleSignals();
    void activeTokenStays();
    void styleNone();
    void styleUnknown_data();
    void styleUnknown();
    void size();
    void values();
    void eventData();
    void otherEventData();
    void eventDataDestroyed();
    void sharedEventData();
    void buttonDestroyedFirst();
    void eventDataIsChild();
    void themeType();
    void missingColorData_data();
    void missingColorData();

protected:
    void prepare() override { m_theme.emplace(); }
    void tidy() override { m_theme.reset(); }

private:
    std::optional<ButtonTheme> m_theme;
};

void tst_LKButtonData::enums()
{
    QCOMPARE(MetaDescription::enums(LKButtonStyle::staticMetaObject),
             QStringList{u"Style: None 0, Primary 1, Secondary 2, Ghost 3, CancelGhost 4, MessageGhost 5, Join 6, "
                         "OutlineJoin 7, Cancel 8, OutlineCancel 9, Message 10, TeachingPrimary 11, "
                         "TeachingSecondary 12"_s});
    QCOMPARE(MetaDescription::enums(LKButtonSize::staticMetaObject),
             QStringList{u"Size: None 0, XL 1, L 2, M 3, S 4, XS 5, XXS 6, XXXS 7"_s});
    QCOMPARE(MetaDescription::enums(LKButtonType::staticMetaObject),
             QStringList{u"Type: None 0, Settings 1, Favorite 2, Attachment 3, Emoji 4, Link 5, Pen 6"_s});
    QCOMPARE(QMetaType::fromType<LKButtonStyle::Style>().name(), "LKButtonStyle::Style");
    QCOMPARE(QMetaType::fromType<LKButtonSize::Size>().name(), "LKButtonSize::Size");
    QCOMPARE(QMetaType::fromType<LKButtonType::Type>().name(), "LKButtonType::Type");
}

void tst_LKButtonData::metaObject()
{
    const QMetaObject &meta = ILKButtonData::staticMetaObject;
    QCOMPARE(
        MetaDescription::properties(meta),
        (QStringList{u"QString themeType, onThemeTypeChanged"_s,
                     u"LKColorData* backgroundColorData, read-only, buttonDataChanged"_s,
                     u"LKColorData* borderColorData, read-only, buttonDataChanged"_s,
                     u"LKColorData* textColorData, read-only, buttonDataChanged"_s,
                     u"LKEventData* eventData, eventDataChanged"_s, u"LKButtonStyle::Style style, styleChanged"_s,
                     u"LKButtonSize::Size size, sizeChanged"_s, u"QSize iconSize, iconSizeChanged"_s,
                     u"int height, heightChanged"_s, u"bool border, borderChanged"_s, u"int radius, radiusChanged"_s}));
    QCOMPARE(MetaDescription::signalsOf(meta),
             (QStringList{u"void onThemeTypeChanged()"_s, u"void eventDataChanged()"_s, u"void styleChanged()"_s,
                          u"void sizeChanged()"_s, u"void iconSizeChanged()"_s, u"void heightChanged()"_s,
                          u"void borderChanged()"_s, u"void radiusChanged()"_s, u"void buttonDataChanged()"_s}));
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
    QCOMPARE(meta.superClass()->propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta.superClass()->methodCount(), QObject::staticMetaObject.methodCount());
    QVERIFY((std::is_base_of_v<WObject, ILKButtonData>));
}

void tst_LKButtonData::defaults()
{
    QObject owner;
    const auto *data = new ILKButtonData(&owner);
    QCOMPARE(data->parent(), &owner);
    QCOMPARE(data->themeType(), QString());
    QCOMPARE(data->eventData(), nullptr);
    QCOMPARE(data->style(), LKButtonStyle::None);
    QCOMPARE(data->size(), LKButtonSize::None);
    QCOMPARE(data->iconSize(), QSize(0, 0));
    QCOMPARE(data->height(), 0);
    QCOMPARE(data->border(), false);
    QCOMPARE(data->radius(), 0);

    const QSet<QObject *> colors{data->backgroundColorData(), data->borderColorData(), data->textColorData()};
    QCOMPARE(colors.size(), 3);
    for (QObject *color : colors) {
        QCOMPARE(color->parent(), data);
        QCOMPARE(qobject_cast<LKColorData *>(color)->token(), QString());
        QCOMPARE(qobject_cast<LKColorData *>(color)->color(), Transparent);
    }
}

void tst_LKButtonData::style_data()
{
    QTest::addColumn<LKButtonStyle::Style>("style");
    QTest::addColumn<QString>("background");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("border");
    const auto row = [](const char *name, LKButtonStyle::Style style, const QString &tokens, bool hasBorder) {
        QTest::newRow(name) << style << tokens + "-background"_L1 << tokens + "-text"_L1
                            << (hasBorder ? tokens + "-border"_L1 : QString());
    };
    row("Primary", LKButtonStyle::Primary, u"button-primary"_s, false);
    row("Secondary", LKButtonStyle::Secondary, u"button-secondary"_s, true);
    row("Ghost", LKButtonStyle::Ghost, u"button-ghost"_s, false);
    row("CancelGhost", LKButtonStyle::CancelGhost, u"button-cancel-ghost"_s, false);
    row("MessageGhost", LKButtonStyle::MessageGhost, u"button-message-ghost"_s, false);
    row("Join", LKButtonStyle::Join, u"button-join-fill"_s, false);
    row("OutlineJoin", LKButtonStyle::OutlineJoin, u"button-join-outline"_s, true);
    row("Cancel", LKButtonStyle::Cancel, u"button-cancel-fill"_s, false);
    row("OutlineCancel", LKButtonStyle::OutlineCancel, u"button-cancel-outline"_s, true);
    row("Message", LKButtonStyle::Message, u"button-message-fill"_s, false);
    row("TeachingPrimary", LKButtonStyle::TeachingPrimary, u"coachmarkteaching-button-primary"_s, false);
    row("TeachingSecondary", LKButtonStyle::TeachingSecondary, u"coachmarkteaching-button-secondary"_s, true);
}

void tst_LKButtonData::style()
{
    QFETCH(LKButtonStyle::Style, style);
    QFETCH(QString, background);
    QFETCH(QString, text);
    QFETCH(QString, border);
    const auto colorOf = [](const QString &token) {
        return token.isEmpty() ? Transparent : ButtonTheme::color(token.toLatin1(), "normal");
    };
    LKEventData state;
    state.setEnabled(true);
    ILKButtonData data;
    data.setEventData(&state);
    // From a style that differs in the border as well.
    data.setStyle(border.isEmpty() ? LKButtonStyle::OutlineJoin : LKButtonStyle::Join);
    QCOMPARE(data.border(), border.isEmpty());

    data.setStyle(style);
    QCOMPARE(data.style(), style);
    QCOMPARE(data.backgroundColorData()->token(), background);
    QCOMPARE(data.textColorData()->token(), text);
    QCOMPARE(data.borderColorData()->token(), border);
    QCOMPARE(data.border(), !border.isEmpty());
    QCOMPARE(data.backgroundColorData()->color(), colorOf(background));
    QCOMPARE(data.textColorData()->color(), colorOf(text));
    QCOMPARE(data.borderColorData()->color(), colorOf(border));
}

void tst_LKButtonData::styleSignals()
{
    ILKButtonData data;
    SignalLog log(&data);
    data.setStyle(LKButtonStyle::Secondary);
    QCOMPARE(log.take(), (QStringList{u"styleChanged"_s, u"borderChanged"_s, u"buttonDataChanged"_s}));
    data.setStyle(LKButtonStyle::Secondary);
    QCOMPARE(log.take(), QStringList());
    data.setStyle(LKButtonStyle::OutlineCancel);
    QCOMPARE(log.take(), (QStringList{u"styleChanged"_s, u"buttonDataChanged"_s}));
    data.setStyle(LKButtonStyle::Ghost);
    QCOMPARE(log.take(), (QStringList{u"styleChanged"_s, u"borderChanged"_s, u"buttonDataChanged"_s}));
    data.setStyle(LKButtonStyle::None);
    QCOMPARE(log.take(), (QStringList{u"styleChanged"_s, u"buttonDataChanged"_s}));

    // All values are there when buttonDataChanged() comes.
    QStringList tokens;
    connect(&data, &ILKButtonData::buttonDataChanged, &data, [&] {
        tokens = {data.backgroundColorData()->token(), data.textColorData()->token(), data.borderColorData()->token(),
                  QVariant(data.border()).toString()};
    });
    data.setStyle(LKButtonStyle::Secondary);
    QCOMPARE(tokens,
             (QStringList{u"button-secondary-background"_s, u"button-secondary-text"_s, u"button-secondary-border"_s,
                          u"true"_s}));
}

void tst_LKButtonData::activeTokenStays()
{
    LKEventData state;
    state.setEnabled(true);
    state.setChecked(true);
    ILKButtonData data;
    data.setEventData(&state);
    data.textColorData()->setActiveToken(u"button-primary-text"_s);
    data.setStyle(LKButtonStyle::Secondary);
    QCOMPARE(data.textColorData()->activeToken(), u"button-primary-text"_s);
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color("button-primary-text", "checked"));
    QCOMPARE(data.backgroundColorData()->color(), ButtonTheme::color("button-secondary-background", "checked"));
}

void tst_LKButtonData::styleNone()
{
    ILKButtonData data;
    data.setStyle(LKButtonStyle::Secondary);
    data.setStyle(LKButtonStyle::None);
    QCOMPARE(data.style(), LKButtonStyle::None);
    QCOMPARE(data.backgroundColorData()->token(), u"button-secondary-background"_s);
    QCOMPARE(data.textColorData()->token(), u"button-secondary-text"_s);
    QCOMPARE(data.borderColorData()->token(), u"button-secondary-border"_s);
    QCOMPARE(data.border(), true);
}

void tst_LKButtonData::styleUnknown_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("-1") << -1;
    QTest::newRow("13") << 13;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_LKButtonData::styleUnknown()
{
    QFETCH(int, value);
    ILKButtonData data;
    data.setStyle(LKButtonStyle::Secondary);
    SignalLog log(&data);
    data.setStyle(LKButtonStyle::Style(value));
    QCOMPARE(int(data.style()), value);
    QCOMPARE(data.textColorData()->token(), u"button-secondary-text"_s);
    QCOMPARE(data.border(), true);
    QCOMPARE(log.take(), (QStringList{u"styleChanged"_s, u"buttonDataChanged"_s}));
}

void tst_LKButtonData::size()
{
    ILKButtonData data;
    SignalLog log(&data);
    data.setSize(LKButtonSize::XL);
    QCOMPARE(data.size(), LKButtonSize::XL);
    QCOMPARE(log.take(), (QStringList{u"sizeChanged"_s, u"buttonDataChanged"_s}));
    data.setSize(LKButtonSize::XL);
    QCOMPARE(log.take(), QStringList());
}

void tst_LKButtonData::values()
{
    ILKButtonData data;
    SignalLog log(&data);
    for (int i = 0; i < 2; ++i) { // the second time nothing differs
        data.setIconSize({3, 4});
        data.setHeight(5);
        data.setBorder(true);
        data.setRadius(6);
        QCOMPARE(log.take(),
                 i == 0
                     ? (QStringList{u"iconSizeChanged"_s, u"heightChanged"_s, u"borderChanged"_s, u"radiusChanged"_s})
                     : QStringList());
    }
    QCOMPARE(data.iconSize(), QSize(3, 4));
    QCOMPARE(data.height(), 5);
    QCOMPARE(data.border(), true);
    QCOMPARE(data.radius(), 6);
}

void tst_LKButtonData::eventData()
{
    LKEventData state;
    ILKButtonData data;
    data.setStyle(LKButtonStyle::Secondary);
    QCOMPARE(data.textColorData()->color(), Transparent);
    SignalLog log(&data);
    QSignalSpy colorChanged(data.textColorData(), &LKColorData::colorChanged);
    const auto stateColors = [](const char *name) {
        return QList<QColor>{ButtonTheme::color("button-secondary-background", name),
                             ButtonTheme::color("button-secondary-border", name),
                             ButtonTheme::color("button-secondary-text", name)};
    };
    const auto colors = [&] {
        return QList<QColor>{data.backgroundColorData()->color(), data.borderColorData()->color(),
                             data.textColorData()->color()};
    };

    data.setEventData(&state);
    QCOMPARE(log.take(), QStringList{u"eventDataChanged"_s});
    QCOMPARE(data.eventData(), &state);
    QCOMPARE(data.textColorData()->eventData(), &state);
    QCOMPARE(colors(), stateColors("disabled"));
    state.setEnabled(true);
    QCOMPARE(colors(), stateColors("normal"));
    state.setActiveFocus(true);
    QCOMPARE(colors(), stateColors("focused"));
    state.setChecked(true);
    QCOMPARE(colors(), stateColors("checked"));
    state.setHovered(true);
    QCOMPARE(colors(), stateColors("hovered"));
    state.setPressed(true);
    QCOMPARE(colors(), stateColors("pressed"));
    QCOMPARE(colorChanged.count(), 6);
    state.setEnabled(false);
    QCOMPARE(colors(), stateColors("disabled"));

    data.setEventData(&state);
    QCOMPARE(log.take(), QStringList());
    data.setEventData(nullptr);
    QCOMPARE(log.take(), QStringList{u"eventDataChanged"_s});
    QCOMPARE(colors(), QList<QColor>(3, Transparent));
}

void tst_LKButtonData::otherEventData()
{
    LKEventData first;
    LKEventData second;
    second.setEnabled(true);
    ILKButtonData data;
    data.setStyle(LKButtonStyle::Primary);
    data.setEventData(&first);
    data.setEventData(&second);
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color("button-primary-text", "normal"));

    SignalLog log(&data);
    QSignalSpy colorChanged(data.textColorData(), &LKColorData::colorChanged);
    first.setEnabled(true);
    first.setPressed(true);
    QCOMPARE(colorChanged.count(), 0);
    second.setHovered(true);
    QCOMPARE(colorChanged.count(), 1);
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color("button-primary-text", "hovered"));
    QCOMPARE(log.take(), QStringList());

    // Nothing of the first is left behind; set again, it reports once.
    data.setEventData(&first);
    data.setEventData(&second);
    data.setEventData(&first);
    colorChanged.clear();
    first.setPressed(false);
    QCOMPARE(colorChanged.count(), 1);
}

void tst_LKButtonData::eventDataDestroyed()
{
    auto former = std::make_unique<LKEventData>();
    auto state = std::make_unique<LKEventData>();
    state->setEnabled(true);
    ILKButtonData data;
    data.setStyle(LKButtonStyle::Primary);
    data.setEventData(former.get());
    data.setEventData(state.get());
    QSignalSpy colorChanged(data.textColorData(), &LKColorData::colorChanged);
    SignalLog log(&data);

    former.reset();
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(colorChanged.count(), 0);

    state.reset();
    QCOMPARE(log.take(), QStringList{u"eventDataChanged"_s});
    QCOMPARE(data.eventData(), nullptr);
    QCOMPARE(colorChanged.count(), 1);
    QCOMPARE(data.textColorData()->color(), Transparent);
    QCOMPARE(data.backgroundColorData()->color(), Transparent);

    LKEventData next;
    data.setEventData(&next);
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color("button-primary-text", "disabled"));
}

void tst_LKButtonData::sharedEventData()
{
    LKEventData state;
    state.setEnabled(true);
    ILKButtonData first;
    ILKButtonData second;
    for (ILKButtonData *data : {&first, &second}) {
        data->setStyle(LKButtonStyle::Primary);
        data->setEventData(&state);
    }
    first.setEventData(nullptr);
    state.setHovered(true);
    QCOMPARE(first.textColorData()->color(), Transparent);
    QCOMPARE(second.textColorData()->color(), ButtonTheme::color("button-primary-text", "hovered"));
}

void tst_LKButtonData::buttonDestroyedFirst()
{
    LKEventData state;
    auto data = std::make_unique<ILKButtonData>();
    const QPointer<LKColorData> color = data->textColorData();
    data->setStyle(LKButtonStyle::Primary);
    data->setEventData(&state);
    data.reset();
    QVERIFY(!color);
    state.setEnabled(true); // nobody is left to hear it
}

void tst_LKButtonData::eventDataIsChild()
{
    auto data = std::make_unique<ILKButtonData>();
    data->setStyle(LKButtonStyle::Primary);
    const QPointer<LKEventData> state = new LKEventData(data.get());
    data->setEventData(state);
    state->setEnabled(true);
    data.reset();
    QVERIFY(!state);

    // Under an owner of both, either may go first.
    for (const bool eventDataFirst : {false, true}) {
        QObject owner;
        auto *button = eventDataFirst ? nullptr : new ILKButtonData(&owner);
        auto *eventData = new LKEventData(&owner);
        if (!button)
            button = new ILKButtonData(&owner);
        button->setStyle(LKButtonStyle::Primary);
        button->setEventData(eventData);
        eventData->setEnabled(true);
    }
}

void tst_LKButtonData::themeType()
{
    LKEventData state;
    state.setEnabled(true);
    ILKButtonData data;
    data.setEventData(&state);
    data.setStyle(LKButtonStyle::Secondary);
    data.textColorData()->setActiveToken(u"button-primary-text"_s);
    SignalLog log(&data);

    ButtonTheme::use("dark");
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color("button-secondary-text", "normal"));
    data.setThemeType(u"dark"_s);
    QCOMPARE(data.themeType(), u"dark"_s);
    QCOMPARE(log.take(), QStringList{u"onThemeTypeChanged"_s});
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color("button-secondary-text", "normal", "dark"));
    QCOMPARE(data.backgroundColorData()->color(), ButtonTheme::color("button-secondary-background", "normal", "dark"));
    QCOMPARE(data.borderColorData()->color(), ButtonTheme::color("button-secondary-border", "normal", "dark"));
    state.setChecked(true);
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color("button-primary-text", "checked", "dark"));

    ButtonTheme::use("light");
    data.setThemeType(u"dark"_s);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(data.borderColorData()->color(), ButtonTheme::color("button-secondary-border", "checked", "dark"));
}

using Accessor = LKColorData *(ILKButtonData::*)() const;

void tst_LKButtonData::missingColorData_data()
{
    QTest::addColumn<Accessor>("accessor");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, Accessor accessor, const QString &warning) {
        QTest::newRow(name) << accessor << warning;
    };
    row("background", &ILKButtonData::backgroundColorData, u"Background color data was not created."_s);
    row("border", &ILKButtonData::borderColorData, u"Border color data was not created."_s);
    row("text", &ILKButtonData::textColorData, u"Text color data was not created."_s);
}

void tst_LKButtonData::missingColorData()
{
    QFETCH(Accessor, accessor);
    QFETCH(QString, warning);
    const QList<Accessor> all{&ILKButtonData::backgroundColorData, &ILKButtonData::borderColorData,
                              &ILKButtonData::textColorData};
    ILKButtonData data;
    delete (data.*accessor)();

    LogRecorder log;
    QCOMPARE((data.*accessor)(), nullptr);
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, warning}}));
    log.clear();

    auto state = std::make_unique<LKEventData>();
    data.setEventData(state.get());
    data.setStyle(LKButtonStyle::Secondary);
    data.setThemeType(u"light"_s);
    state->setEnabled(true);
    for (const Accessor other : all) {
        if (other != accessor)
            QVERIFY((data.*other)()->color() != Transparent);
    }
    state.reset();
    for (const Accessor other : all) {
        if (other != accessor)
            QCOMPARE((data.*other)()->color(), Transparent);
    }
    QCOMPARE(data.border(), true);
    QCOMPARE(log.lines(), QList<LogRecorder::Line>());
}

LUMAKIT_TEST_MAIN(tst_LKButtonData)
#include "tst_lkbuttondata.moc"
