#include "ButtonTheme.h"
#include "MetaDescription.h"
#include "SignalLog.h"

#include <LKColorData.h>
#include <LKEventData.h>
#include <TestCase.h>

using namespace Qt::StringLiterals;

namespace {

const QString Token = u"button-primary-background"_s;
const QString ActiveToken = u"button-secondary-background"_s;
const QColor Transparent(u"transparent"_s);

LogRecorder::Line unknown(const QString &token)
{
    return {QtWarningMsg, u"ColorSet name does not exist!  \"%1\""_s.arg(token)};
}

} // namespace

class tst_LKColorData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaults();
    void tokens();
    void everyState_data();
    void everyState();
    void withoutEventData();
    void eventData();
    void eventDataDestroyed();
    void unknownTokens();
    void activeTokenRemoved();
    void themeChange();
    void onlyDifferencesAreSignalled();

protected:
    void prepare() override { m_theme.emplace(); }
    void tidy() override { m_theme.reset(); }

private:
    std::optional<ButtonTheme> m_theme;
};

void tst_LKColorData::metaObject()
{
    const QMetaObject &meta = LKColorData::staticMetaObject;
    QCOMPARE(MetaDescription::properties(meta),
             (QStringList{u"QString token, tokenChanged"_s, u"QString activeToken, activeTokenChanged"_s,
                          u"QColor color, read-only, colorChanged"_s}));
    QCOMPARE(MetaDescription::signalsOf(meta),
             (QStringList{u"void tokenChanged()"_s, u"void activeTokenChanged()"_s, u"void colorChanged()"_s,
                          u"void eventDataChanged()"_s}));
    QCOMPARE(MetaDescription::slotsOf(meta),
             (QStringList{u"void onEventDataChanged()"_s, u"void onColorDataChanged()"_s}));
    QVERIFY((std::is_base_of_v<WObject, LKColorData>));
}

void tst_LKColorData::defaults()
{
    const LKColorData data;
    QCOMPARE(data.token(), QString());
    QCOMPARE(data.activeToken(), QString());
    QCOMPARE(data.color(), Transparent);
    QCOMPARE(data.eventData(), nullptr);
}

void tst_LKColorData::tokens()
{
    LKEventData state;
    state.setEnabled(true);
    LKColorData data;
    data.setEventData(&state);
    SignalLog log(&data);

    data.setToken(Token);
    QCOMPARE(log.take(), (QStringList{u"tokenChanged"_s, u"colorChanged"_s}));
    QCOMPARE(data.token(), Token);
    QCOMPARE(data.color(), ButtonTheme::color("button-primary-background", "normal"));

    data.setActiveToken(ActiveToken);
    QCOMPARE(log.take(), QStringList{u"activeTokenChanged"_s});
    QCOMPARE(data.activeToken(), ActiveToken);

    data.setToken(Token);
    data.setActiveToken(ActiveToken);
    QCOMPARE(log.take(), QStringList());

    data.setToken(QString());
    QCOMPARE(log.take(), (QStringList{u"tokenChanged"_s, u"colorChanged"_s}));
    QCOMPARE(data.color(), Transparent);
}

void tst_LKColorData::everyState_data()
{
    QTest::addColumn<bool>("hasActiveSet");
    QTest::newRow("no active set") << false;
    QTest::newRow("active set") << true;
}

void tst_LKColorData::everyState()
{
    QFETCH(bool, hasActiveSet);
    for (int flags = 0; flags < 32; ++flags) {
        const bool enabled = flags & 1;
        const bool hovered = flags & 2;
        const bool activeFocus = flags & 4;
        const bool checked = flags & 8;
        const bool pressed = flags & 16;
        const char *token = hasActiveSet && checked ? "button-secondary-background" : "button-primary-background";
        const char *state = "normal";
        if (activeFocus)
            state = "focused";
        if (checked)
            state = "checked";
        if (hovered)
            state = "hovered";
        if (pressed)
            state = "pressed";
        if (!enabled)
            state = "disabled";

        LKEventData eventData;
        eventData.setEnabled(enabled);
        eventData.setHovered(hovered);
        eventData.setActiveFocus(activeFocus);
        eventData.setChecked(checked);
        eventData.setPressed(pressed);
        LKColorData data;
        data.setToken(Token);
        data.setActiveToken(hasActiveSet ? ActiveToken : QString());
        data.setEventData(&eventData);
        QVERIFY2(
            data.color() == ButtonTheme::color(token, state),
            qPrintable(u"flags %1: %2 instead of %3"_s.arg(flags).arg(data.color().name(), QLatin1StringView(state))));
    }
}

void tst_LKColorData::withoutEventData()
{
    LKColorData data;
    QSignalSpy colorChanged(&data, &LKColorData::colorChanged);
    data.setToken(Token);
    data.setActiveToken(ActiveToken);
    data.onEventDataChanged();
    data.onColorDataChanged();
    QCOMPARE(data.color(), Transparent);
    QCOMPARE(colorChanged.count(), 0);
}

void tst_LKColorData::eventData()
{
    LKEventData state;
    LKColorData data;
    data.setToken(Token);
    SignalLog log(&data);

    data.setEventData(&state);
    QCOMPARE(log.take(), (QStringList{u"eventDataChanged"_s, u"colorChanged"_s}));
    QCOMPARE(data.eventData(), &state);
    QCOMPARE(data.color(), ButtonTheme::color("button-primary-background", "disabled"));

    state.setEnabled(true);
    data.onEventDataChanged();
    QCOMPARE(log.take(), QStringList{u"colorChanged"_s});
    QCOMPARE(data.color(), ButtonTheme::color("button-primary-background", "normal"));

    state.setHovered(true);
    data.setEventData(&state);
    QCOMPARE(log.take(), QStringList{u"colorChanged"_s});
    QCOMPARE(data.color(), ButtonTheme::color("button-primary-background", "hovered"));

    data.setEventData(nullptr);
    QCOMPARE(log.take(), (QStringList{u"eventDataChanged"_s, u"colorChanged"_s}));
    QCOMPARE(data.color(), Transparent);
}

void tst_LKColorData::eventDataDestroyed()
{
    auto state = std::make_unique<LKEventData>();
    LKColorData data;
    data.setToken(Token);
    data.setEventData(state.get());
    state.reset();
    QCOMPARE(data.eventData(), nullptr);
    data.onEventDataChanged();
    QCOMPARE(data.color(), Transparent);
}

void tst_LKColorData::unknownTokens()
{
    LKEventData state;
    state.setEnabled(true);
    state.setChecked(true);
    LKColorData data;
    data.setEventData(&state);

    LogRecorder log;
    data.setToken(u"nothing"_s);
    QCOMPARE(log.lines(), QList<LogRecorder::Line>{unknown(u"nothing"_s)});
    QCOMPARE(data.color(), Transparent);

    log.clear();
    data.setActiveToken(ActiveToken);
    QCOMPARE(log.lines(), QList<LogRecorder::Line>());
    QCOMPARE(data.color(), Transparent); // an active set does not stand in for a missing one

    data.setToken(Token);
    data.setActiveToken(u"Nothing else"_s);
    QCOMPARE(log.lines(), QList<LogRecorder::Line>{unknown(u"Nothing else"_s)});
    QCOMPARE(data.color(), ButtonTheme::color("button-primary-background", "checked"));

    log.clear();
    data.setToken(u""_s);
    data.setActiveToken(u""_s);
    data.onColorDataChanged();
    QCOMPARE(log.lines(), QList<LogRecorder::Line>());

    data.setToken(u"nothing"_s);
    data.setActiveToken(u"nothing"_s);
    log.clear();
    data.onColorDataChanged();
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{unknown(u"nothing"_s), unknown(u"nothing"_s)}));
}

void tst_LKColorData::activeTokenRemoved()
{
    LKEventData state;
    state.setEnabled(true);
    state.setChecked(true);
    LKColorData data;
    data.setEventData(&state);
    data.setToken(Token);
    data.setActiveToken(ActiveToken);
    QCOMPARE(data.color(), ButtonTheme::color("button-secondary-background", "checked"));
    data.setActiveToken(QString());
    QCOMPARE(data.color(), ButtonTheme::color("button-primary-background", "checked"));
}

void tst_LKColorData::themeChange()
{
    LKEventData state;
    state.setEnabled(true);
    LKColorData data;
    data.setEventData(&state);
    data.setToken(Token);
    data.setActiveToken(ActiveToken);
    QSignalSpy colorChanged(&data, &LKColorData::colorChanged);

    ButtonTheme::use("dark");
    QCOMPARE(data.color(), ButtonTheme::color("button-primary-background", "normal"));
    data.onColorDataChanged();
    QCOMPARE(colorChanged.count(), 1);
    QCOMPARE(data.color(), ButtonTheme::color("button-primary-background", "normal", "dark"));

    state.setChecked(true);
    data.onEventDataChanged();
    QCOMPARE(data.color(), ButtonTheme::color("button-secondary-background", "checked", "dark"));
}

void tst_LKColorData::onlyDifferencesAreSignalled()
{
    LKEventData state;
    LKColorData data;
    data.setToken(Token);
    data.setEventData(&state);
    QSignalSpy colorChanged(&data, &LKColorData::colorChanged);
    state.setHovered(true); // disabled all the same
    data.onEventDataChanged();
    data.onColorDataChanged();
    QCOMPARE(colorChanged.count(), 0);
}

LUMAKIT_TEST_MAIN(tst_LKColorData)
#include "tst_lkcolordata.moc"
