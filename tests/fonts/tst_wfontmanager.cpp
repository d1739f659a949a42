#include "../theme/MetaDescription.h"

#include <TestCase.h>
#include <WFontManager.h>
#include <WScaledFonts.h>

#include <QPointer>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

class tst_WFontManager : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void get();
    void fontsOnRequest();
    void oneObjectAType();
    void scalingOneLeavesTheOthers_data();
    void scalingOneLeavesTheOthers();
    void scalingCreates();
    void byMetaObject();
    void deletedFromOutside();
    void unknownType();
    void endWithTheManager();
    void fromQml();
};

void tst_WFontManager::metaObject()
{
    const QMetaObject &meta = WFontManager::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(MetaDescription::properties(meta), QStringList());
    QCOMPARE(MetaDescription::signalsOf(meta), QStringList());
    QCOMPARE(MetaDescription::slotsOf(meta),
             QStringList{u"void setScalingFactor(FontManagerEnum::FontType,FontManagerEnum::FontScalingFactor)"_s});
}

void tst_WFontManager::get()
{
    auto *application = qobject_cast<WApplication *>(QCoreApplication::instance());
    QVERIFY(application->getWFontManager());
    QCOMPARE(WFontManager::get(), application->getWFontManager());
}

void tst_WFontManager::fontsOnRequest()
{
    WFontManager manager(nullptr);
    QCOMPARE(manager.children().size(), 0);
    const WScaledFonts *fonts = manager.getFont(FontManagerEnum::MessagingView);
    QCOMPARE(manager.children(), QObjectList{const_cast<WScaledFonts *>(fonts)});
    QCOMPARE(fonts->parent(), &manager);
    QCOMPARE(fonts->h1().pixelSize(), 26);
}

void tst_WFontManager::oneObjectAType()
{
    WFontManager manager(nullptr);
    QList<WScaledFonts *> fonts;
    for (const auto type : {FontManagerEnum::Default, FontManagerEnum::MessagingView, FontManagerEnum::MeetingView}) {
        fonts << manager.getFont(type);
        QCOMPARE(manager.getFont(type), fonts.last());
        QCOMPARE(fonts.count(fonts.last()), 1);
    }
    QCOMPARE(manager.children().size(), 3);
}

void tst_WFontManager::scalingOneLeavesTheOthers_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("default") << int(FontManagerEnum::Default);
    QTest::newRow("messaging view") << int(FontManagerEnum::MessagingView);
    QTest::newRow("meeting view") << int(FontManagerEnum::MeetingView);
}

void tst_WFontManager::scalingOneLeavesTheOthers()
{
    QFETCH(int, type);
    WFontManager manager(nullptr);
    std::array<std::unique_ptr<QSignalSpy>, 3> spies;
    for (int i = 0; i < 3; ++i)
        spies[size_t(i)] = std::make_unique<QSignalSpy>(manager.getFont(FontManagerEnum::FontType(i)),
                                                        &WScaledFonts::fontTokenChanged);
    manager.setScalingFactor(FontManagerEnum::FontType(type), FontManagerEnum::Large);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(spies[size_t(i)]->count(), i == type ? 1 : 0);
        QCOMPARE(manager.getFont(FontManagerEnum::FontType(i))->h1().pixelSize(), i == type ? 40 : 26);
    }
}

void tst_WFontManager::scalingCreates()
{
    WFontManager manager(nullptr);
    manager.setScalingFactor(FontManagerEnum::MeetingView, FontManagerEnum::Small);
    QCOMPARE(manager.children().size(), 1);
    QCOMPARE(manager.getFont(FontManagerEnum::MeetingView)->h1().pixelSize(), 20);
    QCOMPARE(manager.getFont(FontManagerEnum::Default)->h1().pixelSize(), 26);
}

void tst_WFontManager::byMetaObject()
{
    WFontManager manager(nullptr);
    QVERIFY(QMetaObject::invokeMethod(&manager, "setScalingFactor", FontManagerEnum::MessagingView,
                                      FontManagerEnum::Medium));
    QCOMPARE(manager.getFont(FontManagerEnum::MessagingView)->h1().pixelSize(), 32);
}

void tst_WFontManager::deletedFromOutside()
{
    WFontManager manager(nullptr);
    manager.setScalingFactor(FontManagerEnum::MessagingView, FontManagerEnum::Large);
    delete manager.getFont(FontManagerEnum::MessagingView);
    WScaledFonts *fonts = manager.getFont(FontManagerEnum::MessagingView);
    QVERIFY(fonts);
    QCOMPARE(fonts->parent(), &manager);
    QCOMPARE(fonts->h1().pixelSize(), 26);
    QCOMPARE(manager.getFont(FontManagerEnum::MessagingView), fonts);

    delete fonts;
    manager.setScalingFactor(FontManagerEnum::MessagingView, FontManagerEnum::Small);
    QCOMPARE(manager.getFont(FontManagerEnum::MessagingView)->h1().pixelSize(), 20);
}

void tst_WFontManager::unknownType()
{
    WFontManager manager(nullptr);
    const auto unknown = static_cast<FontManagerEnum::FontType>(99);
    WScaledFonts *fonts = manager.getFont(unknown);
    QVERIFY(fonts);
    QCOMPARE(manager.getFont(unknown), fonts);
    manager.setScalingFactor(unknown, static_cast<FontManagerEnum::FontScalingFactor>(99));
    QCOMPARE(fonts->h1().pixelSize(), 26);
}

void tst_WFontManager::endWithTheManager()
{
    QPointer<WScaledFonts> fonts;
    {
        WFontManager manager(nullptr);
        fonts = manager.getFont(FontManagerEnum::Default);
        QVERIFY(fonts);
    }
    QVERIFY(!fonts);
}

void tst_WFontManager::fromQml()
{
    WFontManager manager(nullptr);
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(u"fonts"_s, manager.getFont(FontManagerEnum::MeetingView));
    engine.rootContext()->setContextProperty(u"manager"_s, &manager);
    QQmlComponent component(&engine);
    component.setData("import QtQuick\n"
                      "Item {\n"
                      "  property int h1: fonts.H1.pixelSize\n"
                      "  property int title: fonts.Title.pixelSize\n"
                      "  property bool underlined: fonts.HyperlinkPrimary.underline\n"
                      "  function enlarge() { manager.setScalingFactor(2, 2) }\n"
                      "}\n",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    QCOMPARE(component.errors(), QList<QQmlError>());
    QCOMPARE(object->property("h1").toInt(), 26);
    QCOMPARE(object->property("underlined").toBool(), true);
    QVERIFY(QMetaObject::invokeMethod(object.get(), "enlarge"));
    QCOMPARE(object->property("h1").toInt(), 40);
    QCOMPARE(object->property("title").toInt(), 20);
}

LUMAKIT_TEST_MAIN(tst_WFontManager)
#include "tst_wfontmanager.moc"
