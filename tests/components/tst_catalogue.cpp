#include <ComponentTest.h>
#include <WQmlEngine.h>

#include <QDir>
#include <QFile>
#include <QMetaProperty>
#include <QQmlComponent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The base types of the catalogue that are no components of the library, and the C++ class that each stands for.
const QHash<QString, QByteArray> ForeignBases = {
    {u"Canvas"_s, "QQuickCanvasItem"},
    {u"CheckBox"_s, "QQuickCheckBox"},
    {u"ColumnLayout"_s, "QQuickColumnLayout"},
    {u"ComboBox"_s, "QQuickComboBox"},
    {u"Control"_s, "QQuickControl"},
    {u"DialogButtonBox"_s, "QQuickDialogButtonBox"},
    {u"DropShadow"_s, "QQuickItem"}, // an item of QML
    {u"Flickable"_s, "QQuickFlickable"},
    {u"FocusScope"_s, "QQuickFocusScope"},
    {u"GridLayout"_s, "QQuickGridLayout"},
    {u"GridView"_s, "QQuickGridView"},
    {u"Image"_s, "QQuickImage"},
    {u"AnimatedImage"_s, "QQuickAnimatedImage"},
    {u"Item"_s, "QQuickItem"},
    {u"Label"_s, "QQuickLabel"},
    {u"Menu"_s, "QQuickMenu"},
    {u"MenuItem"_s, "QQuickMenuItem"},
    {u"MenuSeparator"_s, "QQuickMenuSeparator"},
    {u"MouseArea"_s, "QQuickMouseArea"},
    {u"NumberAnimation"_s, "QQuickNumberAnimation"},
    {u"Pane"_s, "QQuickPane"},
    {u"QtObject"_s, "QObject"},
    {u"RadioButton"_s, "QQuickRadioButton"},
    {u"Rectangle"_s, "QQuickRectangle"},
    {u"RowLayout"_s, "QQuickRowLayout"},
    {u"ScrollBar"_s, "QQuickScrollBar"},
    {u"Shortcut"_s, "QQuickShortcut"},
    {u"Slider"_s, "QQuickSlider"},
    {u"SplitView"_s, "QQuickSplitView"},
    {u"Switch"_s, "QQuickSwitch"},
    {u"TabBar"_s, "QQuickTabBar"},
    {u"TabButton"_s, "QQuickTabButton"},
    {u"Text"_s, "QQuickText"},
    {u"TextEdit"_s, "QQuickTextEdit"},
    {u"TextField"_s, "QQuickTextField"},
    {u"TextInput"_s, "QQuickTextInput"},
    {u"ToolTip"_s, "QQuickToolTip"},
    {u"T.Button"_s, "QQuickButton"},
    {u"T.MenuItem"_s, "QQuickMenuItem"},
    {u"T.ScrollBar"_s, "QQuickScrollBar"},
    {u"T.ScrollView"_s, "QQuickScrollView"},
    {u"T.TextArea"_s, "QQuickTextArea"},
    {u"T.TextField"_s, "QQuickTextField"},
    {u"WBalloon"_s, "WQmlBalloon"},
};

struct Component
{
    QString name;
    QString base;
    QStringList properties;
    QStringList signalNames;
};

QList<Component> readCatalogue()
{
    QFile file(QStringLiteral(CATALOGUE));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Component> components;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'#'))
            continue;
        const QStringList fields = line.split(u'|');
        const auto words = [](const QString &field) { return field.split(u' ', Qt::SkipEmptyParts); };
        components.append({fields[0].trimmed(), fields[1].trimmed(), words(fields[2]), words(fields[3])});
    }
    return components;
}

QUrl url(const QString &name)
{
    return QUrl(u"qrc:/Qml/%1.qml"_s.arg(name));
}

bool exists(const QString &name)
{
    return QFile::exists(u":/Qml/%1.qml"_s.arg(name));
}

// A component's class is named after its file; its meta-objects lead to the classes that it is built on.
bool isBuiltOn(const QMetaObject *meta, const QString &base)
{
    const QByteArray foreign = ForeignBases.value(base);
    const QByteArray prefix = base.toLatin1() + "_QML";
    for (; meta; meta = meta->superClass()) {
        const QByteArray name = meta->className();
        if (foreign.isEmpty() ? name.startsWith(prefix) : name == foreign)
            return true;
    }
    return false;
}

QStringList missingMembers(const QMetaObject *meta, const Component &component)
{
    QStringList missing;
    for (const QString &property : component.properties) {
        if (meta->indexOfProperty(property.toLatin1()) < 0)
            missing << property;
    }
    for (const QString &name : component.signalNames) {
        bool found = false;
        for (int i = 0; i < meta->methodCount() && !found; ++i)
            found = meta->method(i).methodType() == QMetaMethod::Signal && meta->method(i).name() == name.toLatin1();
        if (!found)
            missing << name + "()"_L1;
    }
    return missing;
}

// What a component cannot be made without.
QVariantMap requiredProperties(const QString &name)
{
    static const QQuickItem target;
    if (name == "LKFocusManagerProxy"_L1)
        return {{u"target"_s, QVariant::fromValue(const_cast<QQuickItem *>(&target))}};
    return {};
}

int objectCount(const QObject *object)
{
    return int(object->findChildren<QObject *>().size());
}

} // namespace

// What holds for every component, one row each.
class tst_Catalogue : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyComponentIsThere();
    void everyComponentHasASample();
    void basesAndMembers_data();
    void basesAndMembers();
    void fontConstants();
    void loadsSilently_data();
    void loadsSilently();

private:
    void rows();
    std::unique_ptr<QObject> create(const QString &name);

    QList<Component> m_catalogue;
};

void tst_Catalogue::initTestCase()
{
    m_catalogue = readCatalogue();
    QCOMPARE(m_catalogue.size(), 130);
}

void tst_Catalogue::everyComponentIsThere()
{
    QStringList missing;
    for (const Component &component : std::as_const(m_catalogue)) {
        if (!exists(component.name))
            missing << component.name;
    }
    QCOMPARE(missing, QStringList());
}

void tst_Catalogue::everyComponentHasASample()
{
    QStringList missing;
    for (const Component &component : std::as_const(m_catalogue)) {
        if (exists(component.name) && !exists(component.name + "Sample"_L1))
            missing << component.name;
    }
    QCOMPARE(missing, QStringList(u"FontConstants"_s)); // a singleton without looks
}

void tst_Catalogue::basesAndMembers_data()
{
    rows();
}

void tst_Catalogue::basesAndMembers()
{
    QFETCH(const Component, component);
    const std::unique_ptr<QObject> object = create(component.name);
    QVERIFY(object);
    const QMetaObject *meta = object->metaObject();
    QVERIFY2(isBuiltOn(meta, component.base), qPrintable("not a "_L1 + component.base));
    QCOMPARE(missingMembers(meta, component), QStringList());
}

void tst_Catalogue::fontConstants()
{
    QQmlComponent component(application()->getQmlEngine());
    component.setData("import QtQml\nimport LumakitQml 1.0\nQtObject { property QtObject it: FontConstants }", QUrl());
    const std::unique_ptr<QObject> holder(component.create());
    QVERIFY2(holder, qPrintable(component.errorString()));
    const auto *constants = holder->property("it").value<QObject *>();
    QVERIFY(constants);
    const auto row = std::ranges::find(std::as_const(m_catalogue), u"FontConstants"_s, &Component::name);
    QCOMPARE(missingMembers(constants->metaObject(), *row), QStringList());
    QCOMPARE(constants->property("medium").toInt(), 16);
    application()->setFontScaleFactor(1.5F);
    QCOMPARE(constants->property("medium").toInt(), 24);
    QCOMPARE(constants->property("title").value<QFont>().pixelSize(), 30);
    QCOMPARE(constants->property("title").value<QFont>().weight(), QFont::DemiBold);
}

void tst_Catalogue::loadsSilently_data()
{
    rows();
}

// In all circumstances, one after the other; a line in the log fails the test.
void tst_Catalogue::loadsSilently()
{
    QFETCH(const Component, component);
    const auto step = [](const char *) { QCoreApplication::processEvents(); };

    QQuickView view(application()->getQmlEngine(), nullptr);
    view.resize(400, 300);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    LogRecorder log;
    {
        std::unique_ptr<QObject> object = create(component.name);
        QVERIFY2(object, qPrintable(log.texts().join(u'\n')));
        auto *item = qobject_cast<QQuickItem *>(object.get());
        if (item) {
            item->setParentItem(view.contentItem());
            step("implicit size");
            view.grabWindow();
            item->setSize({0, 0});
            step("no size");
            view.grabWindow();
            item->setSize({1200, 900});
            step("large");
            view.grabWindow();
            item->setSize({120, 40});
            item->setEnabled(false);
            step("disabled");
            item->setEnabled(true);
        }
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        step("mirrored");
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        application()->setFontScaleFactor(1.5F);
        step("large font");
        view.grabWindow();
        application()->setFontScaleFactor(1);
        application()->setAnimationsDisabled(true);
        step("without animations");
        view.grabWindow();

        application()->setThemeMode(u"dark"_s);
        step("another theme");
        const int objects = objectCount(object.get());
        for (int i = 0; i < 10; ++i)
            application()->setThemeMode(i % 2 == 0 ? u"highcontrast"_s : u"dark"_s);
        step("many themes");
        QCOMPARE(objectCount(object.get()), objects);
    }
    step("destroyed");
    QStringList lines = log.texts();
    lines.removeIf([](const QString &line) { return line.startsWith("setThemeMode: "_L1); });
    QCOMPARE(lines, QStringList());
}

void tst_Catalogue::rows()
{
    QTest::addColumn<Component>("component");
    for (const Component &component : readCatalogue()) {
        if (exists(component.name) && component.name != "FontConstants"_L1) // a singleton: fontConstants()
            QTest::addRow("%s", qPrintable(component.name)) << component;
    }
}

std::unique_ptr<QObject> tst_Catalogue::create(const QString &name)
{
    QQmlEngine *engine = application()->getQmlEngine();
    QQmlComponent component(engine, url(name));
    std::unique_ptr<QObject> object(component.createWithInitialProperties(requiredProperties(name)));
    if (!object)
        qCritical().noquote() << component.errorString();
    return object;
}

LUMAKIT_TEST_MAIN(tst_Catalogue)
#include "tst_catalogue.moc"
