#include "ButtonTheme.h"
#include "MetaDescription.h"
#include "SignalLog.h"

#include <LKColorData.h>
#include <LKEventData.h>
#include <LKIconButtonData.h>
#include <LKIconData.h>
#include <TestCase.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QColor Transparent(u"transparent"_s);

} // namespace

class tst_LKIconButtonData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaults();
    void type_data();
    void type();
    void typeSignals();
    void noType_data();
    void noType();
    void buttonSize_data();
    void buttonSize();
    void noButtonSize_data();
    void noButtonSize();
    void values();
    void eventData();
    void eventDataDestroyed();
    void themeType();
    void refresh();
    void missingIconData();
    void missingColorData();

protected:
    void prepare() override { m_theme.emplace(); }
    void tidy() override { m_theme.reset(); }

private:
    std::optional<ButtonTheme> m_theme;
};

void tst_LKIconButtonData::metaObject()
{
    const QMetaObject &meta = LKIconButtonData::staticMetaObject;
    QCOMPARE(MetaDescription::properties(meta),
             (QStringList{u"QString themeType, onThemeTypeChanged"_s, u"LKColorData* backgroundColorData, read-only"_s,
                          u"LKColorData* borderColorData, read-only"_s, u"LKColorData* textColorData, read-only"_s,
                          u"LKIconData* iconData, read-only"_s, u"LKEventData* eventData, eventDataChanged"_s,
                          u"LKButtonType::Type type, typeChanged"_s, u"QSize iconSize, iconSizeChanged"_s,
                          u"LKButtonSize::Size buttonSize, buttonSizeChanged"_s, u"bool border, borderChanged"_s,
                          u"int radius, radiusChanged"_s}));
    QCOMPARE(MetaDescription::signalsOf(meta),
             (QStringList{u"void onThemeTypeChanged()"_s, u"void eventDataChanged()"_s, u"void typeChanged()"_s,
                          u"void iconSizeChanged()"_s, u"void buttonSizeChanged()"_s, u"void borderChanged()"_s,
                          u"void radiusChanged()"_s}));
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList{u"void refresh()"_s});
    QVERIFY((std::is_base_of_v<WObject, LKIconButtonData>));
    // No signal tells of other objects: they stay.
    for (const char *name : {"backgroundColorData", "borderColorData", "textColorData", "iconData"})
        QVERIFY(meta.property(meta.indexOfProperty(name)).isConstant());
}

void tst_LKIconButtonData::defaults()
{
    const LKIconButtonData data;
    QCOMPARE(data.themeType(), QString());
    QCOMPARE(data.eventData(), nullptr);
    QCOMPARE(data.type(), LKButtonType::None);
    QCOMPARE(data.buttonSize(), LKButtonSize::None);
    QCOMPARE(data.iconSize(), QSize(0, 0));
    QCOMPARE(data.border(), false);
    QCOMPARE(data.radius(), 0);
    QCOMPARE(data.iconData()->icon(), QString());
    QCOMPARE(data.iconData()->parent(), &data);
    for (const LKColorData *color : {data.backgroundColorData(), data.borderColorData(), data.textColorData()}) {
        QCOMPARE(color->parent(), &data);
        QCOMPARE(color->token(), QString());
    }
}

void tst_LKIconButtonData::type_data()
{
    QTest::addColumn<LKButtonType::Type>("type");
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("activeToken");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("checkedIcon");
    const QString filled = u"interactiveicon-primary-filled-icon-inactive"_s;
    const QString filledActive = u"interactiveicon-primary-filled-icon-active"_s;
    QTest::newRow("Settings") << LKButtonType::Settings << filled << filledActive << u"settings-bold"_s
                              << u"settings-filled"_s;
    QTest::newRow("Favorite") << LKButtonType::Favorite << u"interactiveicon-tertiary-filled-icon-inactive"_s
                              << u"interactiveicon-tertiary-filled-favorite-icon-active"_s << u"favorite-bold"_s
                              << u"favorite-filled"_s;
    QTest::newRow("Attachment") << LKButtonType::Attachment << u"interactiveicon-primary-outline-icon-inactive"_s
                                << u"interactiveicon-primary-outline-icon-active"_s << u"attachment-bold"_s
                                << u"attachment-bold"_s;
    QTest::newRow("Emoji") << LKButtonType::Emoji << filled << filledActive << u"emoji-happy-bold"_s
                           << u"emoji-happy-bold"_s;
    QTest::newRow("Link") << LKButtonType::Link << filled << filledActive << u"link-bold"_s << u"link-bold"_s;
    QTest::newRow("Pen") << LKButtonType::Pen << filled << filledActive << u"pen-bold"_s << u"pen-bold"_s;
}

void tst_LKIconButtonData::type()
{
    QFETCH(LKButtonType::Type, type);
    QFETCH(QString, token);
    QFETCH(QString, activeToken);
    QFETCH(QString, icon);
    QFETCH(QString, checkedIcon);
    LKEventData state;
    state.setEnabled(true);
    LKIconButtonData data;
    data.setEventData(&state);
    data.borderColorData()->setToken(u"button-secondary-border"_s);

    data.setType(type);
    QCOMPARE(data.type(), type);
    QCOMPARE(data.backgroundColorData()->token(), u"interactiveicon-container-background"_s);
    QCOMPARE(data.backgroundColorData()->activeToken(), QString());
    QCOMPARE(data.textColorData()->token(), token);
    QCOMPARE(data.textColorData()->activeToken(), activeToken);
    QCOMPARE(data.borderColorData()->token(), QString());
    QCOMPARE(data.border(), true); // of no colour, since its token is empty
    QCOMPARE(data.borderColorData()->color(), Transparent);
    QCOMPARE(data.iconData()->icon(), icon);
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color(token.toLatin1(), "normal"));

    state.setChecked(true);
    QCOMPARE(data.iconData()->icon(), checkedIcon);
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color(activeToken.toLatin1(), "checked"));
    QCOMPARE(data.backgroundColorData()->color(),
             ButtonTheme::color("interactiveicon-container-background", "checked"));
}

void tst_LKIconButtonData::typeSignals()
{
    LKIconButtonData data;
    SignalLog log(&data);
    data.setType(LKButtonType::Settings);
    QCOMPARE(log.take(), (QStringList{u"typeChanged"_s, u"borderChanged"_s}));
    data.setType(LKButtonType::Settings);
    QCOMPARE(log.take(), QStringList());
    data.setType(LKButtonType::Pen);
    QCOMPARE(log.take(), QStringList{u"typeChanged"_s});
    data.setType(LKButtonType::None);
    QCOMPARE(log.take(), (QStringList{u"typeChanged"_s, u"borderChanged"_s}));
}

void tst_LKIconButtonData::noType_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("None") << int(LKButtonType::None);
    QTest::newRow("-1") << -1;
    QTest::newRow("7") << 7;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_LKIconButtonData::noType()
{
    QFETCH(int, value);
    LKEventData state;
    state.setChecked(true);
    LKIconButtonData data;
    data.setEventData(&state);
    data.setType(LKButtonType::Favorite);
    data.setType(LKButtonType::Type(value));
    QCOMPARE(int(data.type()), value);
    for (const LKColorData *color : {data.backgroundColorData(), data.borderColorData(), data.textColorData()}) {
        QCOMPARE(color->token(), QString());
        QCOMPARE(color->activeToken(), QString());
        QCOMPARE(color->color(), Transparent);
    }
    QCOMPARE(data.iconData()->icon(), QString());
    QCOMPARE(data.border(), false);
}

void tst_LKIconButtonData::buttonSize_data()
{
    QTest::addColumn<LKButtonSize::Size>("size");
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("radius");
    QTest::newRow("XL") << LKButtonSize::XL << 32 << 32;
    QTest::newRow("L") << LKButtonSize::L << 28 << 26;
    QTest::newRow("M") << LKButtonSize::M << 20 << 20;
    QTest::newRow("S") << LKButtonSize::S << 16 << 16;
    QTest::newRow("XS") << LKButtonSize::XS << 16 << 14;
    QTest::newRow("XXS") << LKButtonSize::XXS << 13 << 12;
    QTest::newRow("XXXS") << LKButtonSize::XXXS << 8 << 8;
}

void tst_LKIconButtonData::buttonSize()
{
    QFETCH(LKButtonSize::Size, size);
    QFETCH(int, icon);
    QFETCH(int, radius);
    LKIconButtonData data;
    SignalLog log(&data);
    data.setButtonSize(size);
    QCOMPARE(data.buttonSize(), size);
    QCOMPARE(data.iconSize(), QSize(icon, icon));
    QCOMPARE(data.radius(), radius);
    QCOMPARE(data.border(), false);
    QCOMPARE(log.take(), (QStringList{u"buttonSizeChanged"_s, u"iconSizeChanged"_s, u"radiusChanged"_s}));
    data.setButtonSize(size);
    QCOMPARE(log.take(), QStringList());
}

void tst_LKIconButtonData::noButtonSize_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("None") << int(LKButtonSize::None);
    QTest::newRow("-1") << -1;
    QTest::newRow("8") << 8;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_LKIconButtonData::noButtonSize()
{
    QFETCH(int, value);
    LKIconButtonData data;
    data.setButtonSize(LKButtonSize::XXS);
    SignalLog log(&data);
    data.setButtonSize(LKButtonSize::Size(value));
    QCOMPARE(data.iconSize(), QSize(13, 13));
    QCOMPARE(data.radius(), 12);
    QCOMPARE(log.take(), QStringList{u"buttonSizeChanged"_s});
}

void tst_LKIconButtonData::values()
{
    LKIconButtonData data;
    SignalLog log(&data);
    for (int i = 0; i < 2; ++i) { // the second time nothing differs
        data.setIconSize({3, 4});
        data.setBorder(true);
        data.setRadius(6);
        QCOMPARE(log.take(),
                 i == 0 ? (QStringList{u"iconSizeChanged"_s, u"borderChanged"_s, u"radiusChanged"_s}) : QStringList());
    }
    QCOMPARE(data.iconSize(), QSize(3, 4));
    QCOMPARE(data.border(), true);
    QCOMPARE(data.radius(), 6);
}

void tst_LKIconButtonData::eventData()
{
    LKEventData first;
    LKEventData second;
    LKIconButtonData data;
    data.setType(LKButtonType::Settings);
    SignalLog log(&data);
    data.setEventData(&first);
    data.setEventData(&first);
    QCOMPARE(log.take(), QStringList{u"eventDataChanged"_s});
    QCOMPARE(data.eventData(), &first);
    QCOMPARE(data.iconData()->eventData(), &first);
    first.setChecked(true);
    QCOMPARE(data.iconData()->icon(), u"settings-filled"_s);
    first.setChecked(false);
    QCOMPARE(data.iconData()->icon(), u"settings-bold"_s);

    data.setEventData(&second);
    first.setChecked(true);
    first.setEnabled(true);
    QCOMPARE(data.iconData()->icon(), u"settings-bold"_s);
    QCOMPARE(data.textColorData()->color(),
             ButtonTheme::color("interactiveicon-primary-filled-icon-inactive", "disabled"));
}

void tst_LKIconButtonData::eventDataDestroyed()
{
    auto state = std::make_unique<LKEventData>();
    state->setChecked(true);
    state->setEnabled(true);
    LKIconButtonData data;
    data.setType(LKButtonType::Settings);
    data.setEventData(state.get());
    SignalLog log(&data);
    state.reset();
    QCOMPARE(log.take(), QStringList{u"eventDataChanged"_s});
    QCOMPARE(data.eventData(), nullptr);
    QCOMPARE(data.iconData()->icon(), u"settings-bold"_s);
    QCOMPARE(data.textColorData()->color(), Transparent);
    QCOMPARE(data.backgroundColorData()->color(), Transparent);

    LKEventData outlives;
    auto button = std::make_unique<LKIconButtonData>();
    button->setEventData(&outlives);
    button.reset();
    outlives.setChecked(true); // nobody is left to hear it
}

void tst_LKIconButtonData::themeType()
{
    LKEventData state;
    state.setEnabled(true);
    LKIconButtonData data;
    data.setEventData(&state);
    data.setType(LKButtonType::Pen);
    SignalLog log(&data);
    ButtonTheme::use("dark");
    data.setThemeType(u"dark"_s);
    data.setThemeType(u"dark"_s);
    QCOMPARE(log.take(), QStringList{u"onThemeTypeChanged"_s});
    QCOMPARE(data.themeType(), u"dark"_s);
    QCOMPARE(data.textColorData()->color(),
             ButtonTheme::color("interactiveicon-primary-filled-icon-inactive", "normal", "dark"));
    QCOMPARE(data.backgroundColorData()->color(),
             ButtonTheme::color("interactiveicon-container-background", "normal", "dark"));
}

void tst_LKIconButtonData::refresh()
{
    LKEventData state;
    state.setEnabled(true);
    LKIconButtonData data;
    data.setEventData(&state);
    data.setType(LKButtonType::Link);
    data.setButtonSize(LKButtonSize::M);
    SignalLog log(&data);
    data.refresh();
    QCOMPARE(log.take(), QStringList());

    data.setIconSize({1, 2});
    data.setRadius(3);
    data.setBorder(false);
    data.textColorData()->setToken(QString());
    data.textColorData()->setActiveToken(QString());
    data.iconData()->setIcons(u"x"_s);
    ButtonTheme::use("dark");
    data.refresh();
    QCOMPARE(data.iconSize(), QSize(20, 20));
    QCOMPARE(data.radius(), 20);
    QCOMPARE(data.border(), true);
    QCOMPARE(data.iconData()->icon(), u"link-bold"_s);
    QCOMPARE(data.textColorData()->activeToken(), u"interactiveicon-primary-filled-icon-active"_s);
    QCOMPARE(data.textColorData()->color(),
             ButtonTheme::color("interactiveicon-primary-filled-icon-inactive", "normal", "dark"));
    QCOMPARE(data.backgroundColorData()->color(),
             ButtonTheme::color("interactiveicon-container-background", "normal", "dark"));
}

void tst_LKIconButtonData::missingIconData()
{
    LKIconButtonData data;
    delete data.iconData();
    LogRecorder log;
    QCOMPARE(data.iconData(), nullptr);
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, u"icon data was not created."_s}}));
    log.clear();

    LKEventData state;
    data.setEventData(&state);
    data.setType(LKButtonType::Settings);
    state.setEnabled(true);
    state.setChecked(true);
    data.refresh();
    QCOMPARE(data.textColorData()->color(),
             ButtonTheme::color("interactiveicon-primary-filled-icon-active", "checked"));
    QCOMPARE(log.lines(), QList<LogRecorder::Line>());
}

void tst_LKIconButtonData::missingColorData()
{
    LKIconButtonData data;
    delete data.backgroundColorData();
    delete data.borderColorData();
    delete data.textColorData();
    LogRecorder log;
    QCOMPARE(data.backgroundColorData(), nullptr);
    QCOMPARE(data.borderColorData(), nullptr);
    QCOMPARE(data.textColorData(), nullptr);
    QCOMPARE(log.lines(),
             (QList<LogRecorder::Line>{{QtWarningMsg, u"Background color data was not created."_s},
                                       {QtWarningMsg, u"Border color data was not created."_s},
                                       {QtWarningMsg, u"Text color data was not created."_s}}));
    log.clear();

    auto state = std::make_unique<LKEventData>();
    data.setEventData(state.get());
    data.setType(LKButtonType::Settings);
    data.setThemeType(u"light"_s);
    state->setChecked(true);
    QCOMPARE(data.iconData()->icon(), u"settings-filled"_s);
    QCOMPARE(data.border(), true);
    data.refresh();
    state.reset();
    QCOMPARE(log.lines(), QList<LogRecorder::Line>());
}

LUMAKIT_TEST_MAIN(tst_LKIconButtonData)
#include "tst_lkiconbuttondata.moc"
