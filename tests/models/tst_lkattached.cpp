#include "ButtonTheme.h"

#include <LKColorData.h>
#include <LKEventData.h>
#include <LKIconButtonData.h>
#include <LKIconData.h>
#include <LKPillButtonData.h>
#include <LKRoundButtonData.h>
#include <TestCase.h>

#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace {

template<typename Enum> void registerEnum(const char *name, const QString &reason)
{
    const QMetaType type = QMetaType::fromType<Enum>();
    qmlRegisterUncreatableMetaObject(*type.metaObject(), "LumakitQml", 1, 0, name, reason);
    // QML that is compiled ahead of time finds the enums of a namespace through a type of its name.
    type.registerType();
    QMetaType::registerNormalizedTypedef(name, type);
}

} // namespace

/// Button data as QML sees them: attached to an item.
class tst_LKAttached : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pill();
    void pillFollows();
    void font_data();
    void font();
    void fontFollows_data();
    void fontFollows();
    void round();
    void icon();
    void deletedColorData();
    void notCreatable_data();
    void notCreatable();

protected:
    void prepare() override { m_theme.emplace(); }
    void tidy() override
    {
        ButtonTheme::application()->setFontScaleFactor(1.0F);
        m_theme.reset();
    }

private:
    std::unique_ptr<QObject> create(const QByteArray &body);
    std::unique_ptr<QObject> create(QQmlComponent &component);

    std::optional<ButtonTheme> m_theme;
    QQmlEngine m_engine; // one for all tests: App belongs to a single engine
};

void tst_LKAttached::initTestCase()
{
    const auto reason = u"no"_s;
    qmlRegisterType<LKEventData>("LumakitQml", 1, 0, "LKEventData");
    qmlRegisterUncreatableType<LKPillButtonData>("LumakitQml", 1, 0, "LKPillButtonData", reason);
    qmlRegisterUncreatableType<LKRoundButtonData>("LumakitQml", 1, 0, "LKRoundButtonData", reason);
    qmlRegisterUncreatableType<LKIconButtonData>("LumakitQml", 1, 0, "LKIconButtonData", reason);
    qmlRegisterUncreatableType<LKColorData>("LumakitQml", 1, 0, "LKColorData", reason);
    registerEnum<LKButtonStyle::Style>("LKButtonStyle", reason);
    registerEnum<LKButtonSize::Size>("LKButtonSize", reason);
    registerEnum<LKButtonType::Type>("LKButtonType", reason);
}

std::unique_ptr<QObject> tst_LKAttached::create(const QByteArray &body)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick\nimport LumakitQml 1.0\nimport Corvane 1.0\n" + body, QUrl());
    return create(component);
}

std::unique_ptr<QObject> tst_LKAttached::create(QQmlComponent &component)
{
    std::unique_ptr<QObject> object(component.create());
    if (!object)
        QTest::qFail(qPrintable(component.errorString()), __FILE__, __LINE__);
    return object;
}

void tst_LKAttached::pill()
{
    const auto item = create(R"(
        Item {
            id: button
            LKPillButtonData.style: LKButtonStyle.Secondary
            LKPillButtonData.size: LKButtonSize.S
            LKPillButtonData.themeType: App.themeMode
            LKPillButtonData.eventData: LKEventData { enabled: true }

            readonly property int dataStyle: LKPillButtonData.style
            readonly property int dataSize: LKPillButtonData.size
            readonly property string themeType: LKPillButtonData.themeType
            readonly property bool dataEnabled: LKPillButtonData.eventData.enabled
            readonly property color background: LKPillButtonData.backgroundColorData.color
            readonly property color border: LKPillButtonData.borderColorData.color
            readonly property color textColor: LKPillButtonData.textColorData.color
            readonly property bool hasBorder: LKPillButtonData.border
            readonly property size iconSize: Qt.size(LKPillButtonData.iconSize.width, LKPillButtonData.iconSize.height)
            readonly property int dataHeight: LKPillButtonData.height
            readonly property int radius: LKPillButtonData.radius
            readonly property int leftPadding: LKPillButtonData.leftPadding
            readonly property int rightPadding: LKPillButtonData.rightPadding
            readonly property int spacing: LKPillButtonData.spacing
            readonly property int pixelSize: LKPillButtonData.font.pixelSize
            readonly property int weight: LKPillButtonData.font.weight
        }
    )");
    QVERIFY(item);
    QCOMPARE(item->property("dataStyle"), int(LKButtonStyle::Secondary));
    QCOMPARE(item->property("dataSize"), int(LKButtonSize::S));
    QCOMPARE(item->property("themeType"), u"light"_s);
    QCOMPARE(item->property("dataEnabled"), true);
    QCOMPARE(item->property("background").value<QColor>(), ButtonTheme::color("button-secondary-background", "normal"));
    QCOMPARE(item->property("border").value<QColor>(), ButtonTheme::color("button-secondary-border", "normal"));
    QCOMPARE(item->property("textColor").value<QColor>(), ButtonTheme::color("button-secondary-text", "normal"));
    QCOMPARE(item->property("hasBorder"), true);
    QCOMPARE(item->property("iconSize"), QSizeF(16, 16));
    QCOMPARE(item->property("dataHeight"), 28);
    QCOMPARE(item->property("radius"), 14);
    QCOMPARE(item->property("leftPadding"), 10);
    QCOMPARE(item->property("rightPadding"), 10);
    QCOMPARE(item->property("spacing"), 4);
    QCOMPARE(item->property("pixelSize"), 14);
    QCOMPARE(item->property("weight"), 600);

    const auto *data =
        qobject_cast<LKPillButtonData *>(qmlAttachedPropertiesObject<LKPillButtonData>(item.get(), false));
    QVERIFY(data);
    QCOMPARE(data->parent(), item.get());
}

void tst_LKAttached::pillFollows()
{
    const auto item = create(R"(
        Item {
            property int style: LKButtonStyle.Primary
            property bool hover: false
            property bool check: false
            LKPillButtonData.style: style
            LKPillButtonData.size: LKButtonSize.XL
            LKPillButtonData.themeType: App.themeMode
            LKPillButtonData.eventData: LKEventData { enabled: true; hovered: hover; checked: check }
            readonly property color background: LKPillButtonData.backgroundColorData.color
            readonly property bool hasBorder: LKPillButtonData.border
            readonly property int dataHeight: LKPillButtonData.height
        }
    )");
    QVERIFY(item);
    const auto background = [&] { return item->property("background").value<QColor>(); };
    QCOMPARE(background(), ButtonTheme::color("button-primary-background", "normal"));
    item->setProperty("check", true);
    QCOMPARE(background(), ButtonTheme::color("button-primary-background", "checked"));
    item->setProperty("hover", true);
    QCOMPARE(background(), ButtonTheme::color("button-primary-background", "hovered"));
    ButtonTheme::use("dark");
    QCOMPARE(background(), ButtonTheme::color("button-primary-background", "hovered", "dark"));
    item->setProperty("style", int(LKButtonStyle::OutlineCancel));
    QCOMPARE(background(), ButtonTheme::color("button-cancel-outline-background", "hovered", "dark"));
    QCOMPARE(item->property("hasBorder"), true);

    QQmlProperty size(item.get(), u"LKPillButtonData.size"_s, qmlContext(item.get()));
    QVERIFY(size.write(int(LKButtonSize::XS)));
    QCOMPARE(item->property("dataHeight"), 24);
}

void tst_LKAttached::font_data()
{
    QTest::addColumn<QByteArray>("binding");
    QTest::newRow("the property") << "item.LKPillButtonData.font"_ba;
    QTest::newRow("an expression") << "item.visible ? item.LKPillButtonData.font : Qt.font({})"_ba;
    QTest::newRow("a function") << "(() => item.LKPillButtonData.font)()"_ba;
    QTest::newRow("through a var") << "{ let value = item.LKPillButtonData.font; return value; }"_ba;
}

void tst_LKAttached::font()
{
    QFETCH(QByteArray, binding);
    const auto text = create(R"(
        Text {
            id: item
            LKPillButtonData.size: LKButtonSize.XL
            font: )" + binding
                             + R"(
        }
    )");
    QVERIFY(text);
    QCOMPARE(text->property("font").value<QFont>(), QFont(WFont(WFont::SubheaderPrimary, false)));
}

void tst_LKAttached::fontFollows_data()
{
    QTest::addColumn<bool>("aheadOfTime");
    QTest::newRow("compiled at run time") << false;
    QTest::newRow("compiled ahead of time") << true;
}

void tst_LKAttached::fontFollows()
{
    QFETCH(bool, aheadOfTime);
    const QString path = u":/Qml/ButtonFont.qml"_s;
    QFile source(path);
    QVERIFY(source.open(QIODevice::ReadOnly));
    QQmlComponent component(&m_engine);
    if (aheadOfTime)
        component.loadUrl(QUrl("qrc"_L1 + path));
    else
        component.setData(source.readAll(), QUrl());
    const auto item = create(component);
    QVERIFY(item);
    const auto font = [&] { return item->property("textFont").value<QFont>(); };
    QCOMPARE(font(), QFont(WFont(WFont::SubheaderPrimary, false)));
    item->setProperty("size", int(LKButtonSize::XXS));
    QCOMPARE(font(), QFont(WFont(WFont::BodyTertiary, false)));
    QCOMPARE(item->property("pixelSize"), 12);
    ButtonTheme::application()->setFontScaleFactor(1.5F);
    QCOMPARE(item->property("pixelSize"), 18);
    QCOMPARE(font().pixelSize(), 18);
    QCOMPARE(font().weight(), QFont::DemiBold);
}

void tst_LKAttached::round()
{
    const auto item = create(R"(
        Item {
            LKRoundButtonData.style: LKButtonStyle.Cancel
            LKRoundButtonData.size: LKButtonSize.XXS
            LKRoundButtonData.eventData: LKEventData { enabled: true; pressed: true }
            readonly property color background: LKRoundButtonData.backgroundColorData.color
            readonly property color textColor: LKRoundButtonData.textColorData.color
            readonly property string borderToken: LKRoundButtonData.borderColorData.token
            readonly property bool hasBorder: LKRoundButtonData.border
            readonly property size iconSize: LKRoundButtonData.iconSize
            readonly property int dataWidth: LKRoundButtonData.width
            readonly property int dataHeight: LKRoundButtonData.height
            readonly property int radius: LKRoundButtonData.radius
            function refresh() { LKRoundButtonData.radius = 1; LKRoundButtonData.refresh() }
        }
    )");
    QVERIFY(item);
    QCOMPARE(item->property("background").value<QColor>(),
             ButtonTheme::color("button-cancel-fill-background", "pressed"));
    QCOMPARE(item->property("textColor").value<QColor>(), ButtonTheme::color("button-cancel-fill-text", "pressed"));
    QCOMPARE(item->property("borderToken"), QString());
    QCOMPARE(item->property("iconSize"), QSizeF(13, 13));
    QCOMPARE(item->property("dataWidth"), 24);
    QCOMPARE(item->property("dataHeight"), 24);
    QCOMPARE(item->property("radius"), 12);
    QVERIFY(QMetaObject::invokeMethod(item.get(), "refresh"));
    QCOMPARE(item->property("radius"), 12);
    QCOMPARE(item->property("hasBorder"), true);
}

void tst_LKAttached::icon()
{
    const auto item = create(R"(
        Item {
            property bool check: false
            LKIconButtonData.type: LKButtonType.Favorite
            LKIconButtonData.buttonSize: LKButtonSize.S
            LKIconButtonData.eventData: LKEventData { enabled: true; checked: check }
            readonly property string icon: LKIconButtonData.iconData.icon
            readonly property color background: LKIconButtonData.backgroundColorData.color
            readonly property color border: LKIconButtonData.borderColorData.color
            readonly property color iconColor: LKIconButtonData.textColorData.color
            readonly property bool hasBorder: LKIconButtonData.border
            readonly property size iconSize: LKIconButtonData.iconSize
            readonly property int radius: LKIconButtonData.radius
            readonly property int type: LKIconButtonData.type
            readonly property int buttonSize: LKIconButtonData.buttonSize
        }
    )");
    QVERIFY(item);
    QCOMPARE(item->property("icon"), u"favorite-bold"_s);
    QCOMPARE(item->property("background").value<QColor>(),
             ButtonTheme::color("interactiveicon-container-background", "normal"));
    QCOMPARE(item->property("border").value<QColor>(), QColor(Qt::transparent));
    QCOMPARE(item->property("iconColor").value<QColor>(),
             ButtonTheme::color("interactiveicon-tertiary-filled-icon-inactive", "normal"));
    QCOMPARE(item->property("hasBorder"), true);
    QCOMPARE(item->property("iconSize"), QSizeF(16, 16));
    QCOMPARE(item->property("radius"), 16);
    QCOMPARE(item->property("type"), int(LKButtonType::Favorite));
    QCOMPARE(item->property("buttonSize"), int(LKButtonSize::S));
    item->setProperty("check", true);
    QCOMPARE(item->property("icon"), u"favorite-filled"_s);
    QCOMPARE(item->property("iconColor").value<QColor>(),
             ButtonTheme::color("interactiveicon-tertiary-filled-favorite-icon-active", "checked"));
}

void tst_LKAttached::deletedColorData()
{
    const auto item = create(R"(
        Item {
            LKPillButtonData.style: LKButtonStyle.Primary
            readonly property bool hasBackground: LKPillButtonData.backgroundColorData !== null
        }
    )");
    QVERIFY(item);
    QCOMPARE(item->property("hasBackground"), true);
    auto *data = qobject_cast<LKPillButtonData *>(qmlAttachedPropertiesObject<LKPillButtonData>(item.get(), false));
    QVERIFY(data);
    delete data->backgroundColorData();
    LogRecorder log;
    data->setStyle(LKButtonStyle::Secondary);
    QCOMPARE(item->property("hasBackground"), false);
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, u"Background color data was not created."_s}}));
}

void tst_LKAttached::notCreatable_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const char *type : {"LKPillButtonData", "LKRoundButtonData", "LKIconButtonData", "LKColorData",
                             "LKButtonStyle", "LKButtonSize", "LKButtonType"})
        QTest::newRow(type) << QByteArray(type);
}

void tst_LKAttached::notCreatable()
{
    QFETCH(QByteArray, type);
    QQmlComponent component(&m_engine);
    component.setData("import LumakitQml 1.0\n" + type + " { }", QUrl());
    QVERIFY(component.isError());
    QVERIFY2(component.errorString().endsWith(" no\n"_L1), qPrintable(component.errorString()));
}

LUMAKIT_TEST_MAIN(tst_LKAttached)
#include "tst_lkattached.moc"
