#include <LKQmlRegister.h>
#include <TestCase.h>

#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Type, Singleton, Uncreatable, Enums, File };

struct Entry
{
    const char *name;
    Kind kind;
    const char *detail; // the class, the reason or the keys
};

// In the order of their registration.
constexpr Entry Entries[] = {
    {"WBalloon", Kind::Type, "WQmlBalloon"},
    {"WHalfPill", Kind::Type, "WQmlHalfPill"},
    {"WQmlPopupController", Kind::Type, "WQmlPopupController"},
    {"LKEventData", Kind::Type, "LKEventData"},
    {"WMovieProvider", Kind::Type, "WMovieProvider"},
    {"Utils", Kind::Singleton, "QmlUtils"},
    {"ToolTipUtils", Kind::Singleton, "ToolTipUtils"},
    {"UiConstants", Kind::Singleton, "UiConstants"},
    {"Logger", Kind::Singleton, "Logger"},
    {"LKPillButtonData", Kind::Uncreatable, "LKPillButtonData cannot be created from QML"},
    {"LKRoundButtonData", Kind::Uncreatable, "LKRoundButtonData cannot be created from QML"},
    {"LKIconButtonData", Kind::Uncreatable, "LKIconButtonData cannot be created from QML"},
    {"LKColorData", Kind::Uncreatable, "LKColorData cannot be created from QML"},
    {"LKButtonStyle", Kind::Enums,
     "None Primary Secondary Ghost CancelGhost MessageGhost Join OutlineJoin Cancel OutlineCancel Message "
     "TeachingPrimary TeachingSecondary"},
    {"LKButtonSize", Kind::Enums, "None XL L M S XS XXS XXXS"},
    {"LKButtonType", Kind::Enums, "None Settings Favorite Attachment Emoji Link Pen"},
    {"FontConstants", Kind::File, ""},
};

// In the order of their registration.
constexpr const char *Components[] = {
    "AvatarListStandard",
    "ListItemBackground",
    "PeopleSummaryBricklet",
    "WAccessibleLabel",
    "WAvatar",
    "WButton",
    "WButtonsOverflowList",
    "WCheckBox",
    "WCircularProgressBar",
    "WCoachmark",
    "WComboBox",
    "WCoverImage",
    "WCursorItem",
    "WDialogButtonBox",
    "WDropShadow",
    "WDropShadowRect",
    "WDynamicImage",
    "WDynamicAnimatedImage",
    "WEmptyState",
    "WExpandableDelegate",
    "WExpandableListView",
    "WFade",
    "WFadeStates",
    "WFlickableLineEdit",
    "WFlickableTextEdit",
    "WFrame",
    "WFTEDialog",
    "WGifLabel",
    "WGradientRectangle",
    "WGradientRectangleRoundCorner",
    "WGridView",
    "WHyperlink",
    "WImage",
    "WItem",
    "WKeyButton",
    "WLabel",
    "WLineEdit",
    "WListView",
    "WMessagingListView",
    "WMenu",
    "WMenuItem",
    "WMenuSeparator",
    "WMessageBannerButton",
    "WMoveWindowArea",
    "WNamedValue",
    "WPane",
    "WPillButton",
    "WPillTabBar",
    "WPopupList",
    "WRectangle",
    "WResizeFrame",
    "WScrollHelper",
    "WSelfMessageAvatar",
    "WSearchField",
    "WSeparator",
    "WSessionDelegate",
    "WShortcut",
    "WSlider",
    "WSpinner",
    "WSplitView",
    "WSvgButton",
    "WSvgIcon",
    "WSvgIconButton",
    "WSvgImage",
    "WSvgSequenceAnimated",
    "WSvgSplitButton",
    "WSvgSplitIconButton",
    "WSvgSpinner",
    "WSwitch",
    "WSystemToolTip",
    "WTabBar",
    "WTabButton",
    "WTag",
    "WText",
    "WTextArea",
    "WTextEdit",
    "WTextEditElide",
    "WTextEditElideMultiline",
    "WTextEditLink",
    "WTextElide",
    "WTextField",
    "WTextInput",
    "WToolTip",
    "LKTextFieldBase",
    "LKTextAreaBase",
    "LKButtonBase",
    "LKToolButton",
    "LKLabelBase",
    "LKSvgResource",
    "DScrollBar",
};
static_assert(std::size(Entries) == 17 && std::size(Components) == 90);

void addEntries(std::initializer_list<Kind> kinds)
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("detail");
    for (const Entry &entry : Entries) {
        if (std::ranges::find(kinds, entry.kind) != kinds.end())
            QTest::newRow(entry.name) << QString::fromLatin1(entry.name) << QString::fromLatin1(entry.detail);
    }
}

QString fileUrl(const QString &name)
{
    return u"qrc:/Qml/%1.qml"_s.arg(name);
}

bool hasFile(const QString &name)
{
    return QFile::exists(u":/Qml/%1.qml"_s.arg(name));
}

// Text that uses the module, loaded by an engine of its own.
class Screen
{
public:
    explicit Screen(const QString &body)
        : m_component(&m_engine)
    {
        m_component.setData("import QtQml\nimport LumakitQml 1.0\n" + body.toUtf8(), QUrl());
    }

    bool isReady() const { return m_component.isReady(); }
    QStringList errors() const
    {
        QStringList lines;
        for (const QQmlError &error : m_component.errors())
            lines << (error.url().isEmpty() ? QString() : error.url().toString() + u": "_s) + error.description();
        return lines;
    }
    std::unique_ptr<QObject> create() { return std::unique_ptr<QObject>(m_component.create()); }

private:
    QQmlEngine m_engine;
    QQmlComponent m_component;
};

QVariant evaluate(const QString &expression)
{
    Screen screen(u"QtObject { property var value: %1 }"_s.arg(expression));
    const std::unique_ptr<QObject> object = screen.create();
    return object ? object->property("value") : QVariant();
}

} // namespace

class tst_LKQmlRegister : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void order();
    void types_data() { addEntries({Kind::Type}); }
    void types();
    void singletons_data() { addEntries({Kind::Singleton}); }
    void singletons();
    void uncreatable_data() { addEntries({Kind::Uncreatable}); }
    void uncreatable();
    void enums_data() { addEntries({Kind::Enums}); }
    void enums();
    void fontConstants();
    void classNames_data();
    void classNames();
    void components_data();
    void components();
    void nameWithoutFile();
    void again_data();
    void again();
};

void tst_LKQmlRegister::initTestCase()
{
    QCOMPARE(qmlTypeId("LumakitQml", 1, 0, "WBalloon"), -1);
    QCOMPARE(qmlTypeId("LumakitQml", 1, 0, "WAvatar"), -1);
    LKQmlRegister::registerLKQmlDataTypes();
    QVERIFY(qmlTypeId("LumakitQml", 1, 0, "WBalloon") != -1);
    QCOMPARE(qmlTypeId("LumakitQml", 1, 0, "WAvatar"), -1); // a routine of its own
    LKQmlRegister::registerLKQmlComponents();
}

// Each registration gets a higher number than those before it.
void tst_LKQmlRegister::order()
{
    int last = -1;
    const auto follows = [&last](const char *name) {
        const int id = qmlTypeId("LumakitQml", 1, 0, name);
        const bool result = id > last;
        last = id;
        return result;
    };
    for (const Entry &entry : Entries)
        QVERIFY2(follows(entry.name), entry.name);
    for (const char *name : Components)
        QVERIFY2(follows(name), name);
}

void tst_LKQmlRegister::types()
{
    QFETCH(const QString, name);
    QFETCH(const QString, detail);
    Screen screen(name + u" { }"_s);
    const std::unique_ptr<QObject> object = screen.create();
    QCOMPARE(screen.errors(), QStringList());
    QCOMPARE(QString::fromLatin1(object->metaObject()->className()), detail);
}

void tst_LKQmlRegister::singletons()
{
    QFETCH(const QString, name);
    QFETCH(const QString, detail);
    QVERIFY(!Screen(name + u" { }"_s).isReady());

    const auto instance = [&](QQmlEngine &engine) {
        QQmlComponent component(&engine);
        component.setData(
            "import QtQml\nimport LumakitQml 1.0\nQtObject { property QtObject it: " + name.toUtf8() + " }", QUrl());
        const std::unique_ptr<QObject> object(component.create());
        return object ? object->property("it").value<QObject *>() : nullptr;
    };
    auto engine = std::make_unique<QQmlEngine>();
    QQmlEngine other;
    const QPointer<QObject> first = instance(*engine);
    QVERIFY(first);
    QCOMPARE(QString::fromLatin1(first->metaObject()->className()), detail);
    QCOMPARE(first->parent(), nullptr);
    QCOMPARE(instance(*engine), first);
    QCOMPARE(engine->singletonInstance<QObject *>("LumakitQml", name), first);
    const QPointer<QObject> second = instance(other);
    QVERIFY(second);
    QVERIFY(second != first);
    engine.reset();
    QVERIFY(first.isNull());
    QVERIFY(second);
}

void tst_LKQmlRegister::uncreatable()
{
    QFETCH(const QString, name);
    QFETCH(const QString, detail);
    QCOMPARE(Screen(name + u" { }"_s).errors(), QStringList(detail));
    QVERIFY(Screen(u"QtObject { property %1 data }"_s.arg(name)).isReady()); // as the type of a property
}

void tst_LKQmlRegister::enums()
{
    QFETCH(const QString, name);
    QFETCH(const QString, detail);
    QCOMPARE(Screen(name + u" { }"_s).errors(), QStringList(name + u" enum property."_s));
    const QStringList keys = detail.split(u' ');
    for (qsizetype value = 0; value < keys.size(); ++value)
        QCOMPARE(evaluate(name + u'.' + keys[value]), QVariant(int(value)));
}

void tst_LKQmlRegister::fontConstants()
{
    const Screen screen(u"QtObject { property QtObject it: FontConstants }"_s);
    if (hasFile(u"FontConstants"_s))
        QCOMPARE(screen.errors(), QStringList());
    else
        QVERIFY(screen.errors().contains(fileUrl(u"FontConstants"_s) + u": No such file or directory"_s));
    QVERIFY(!Screen(u"FontConstants { }"_s).isReady());
}

void tst_LKQmlRegister::classNames_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"QmlUtils", "WQmlBalloon", "WQmlHalfPill"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

// QML knows these classes by other names only.
void tst_LKQmlRegister::classNames()
{
    QFETCH(const QString, name);
    QCOMPARE(evaluate(u"typeof "_s + name), QVariant(u"undefined"_s));
    QCOMPARE(Screen(name + u" { }"_s).errors(), QStringList(name + u" is not a type"_s));
}

void tst_LKQmlRegister::components_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : Components)
        QTest::newRow(name) << QString::fromLatin1(name);
}

// The name stands for the file of that name, whether the file is there or not.
void tst_LKQmlRegister::components()
{
    QFETCH(const QString, name);
    const Screen screen(name + u" { }"_s);
    if (hasFile(name)) {
        QCOMPARE(screen.errors(), QStringList());
        QVERIFY(screen.isReady());
        return;
    }
    QCOMPARE(screen.errors(),
             (QStringList{u"Type %1 unavailable"_s.arg(name), fileUrl(name) + u": No such file or directory"_s}));
    const MemoryResources file(
        {{u"/Qml/%1.qml"_s.arg(name), "import QtQml\nQtObject { objectName: \"" + name.toLatin1() + "\" }"}});
    Screen screenWithFile(name + u" { }"_s);
    const std::unique_ptr<QObject> object = screenWithFile.create();
    QVERIFY(object);
    QCOMPARE(object->objectName(), name);
}

// The name is taken, but the library has no such file: using it fails when the screen is loaded.
void tst_LKQmlRegister::nameWithoutFile()
{
    QVERIFY(!hasFile(u"WMessagingListView"_s));
    const Screen screen(u"QtObject { property QtObject list: WMessagingListView { } }"_s);
    QVERIFY(!screen.isReady());
    QCOMPARE(screen.errors(),
             (QStringList{u"Type WMessagingListView unavailable"_s,
                          u"qrc:/Qml/WMessagingListView.qml: No such file or directory"_s}));
}

void tst_LKQmlRegister::again_data()
{
    QTest::addColumn<int>("times");
    QTest::newRow("twice") << 1;
    QTest::newRow("many times") << 5;
}

// Everything is registered once more, which changes nothing.
void tst_LKQmlRegister::again()
{
    QFETCH(const int, times);
    const LogRecorder log;
    for (int i = 0; i < times; ++i) {
        LKQmlRegister::registerLKQmlDataTypes();
        LKQmlRegister::registerLKQmlComponents();
    }
    QCOMPARE(log.lines(), QList<LogRecorder::Line>());
    order();
    QVERIFY(Screen(u"WBalloon { }"_s).isReady());
    QVERIFY(Screen(u"WItem { }"_s).isReady());
    QCOMPARE(evaluate(u"UiConstants.ScrollbarSize"_s), QVariant(16));
}

LUMAKIT_TEST_MAIN(tst_LKQmlRegister)
#include "tst_lkqmlregister.moc"
