#include <LKQmlRegister.h>
#include <MetaDescription.h>
#include <QmlUtils.h>
#include <TestCase.h>
#include <WPopupQuickView.h>
#include <WQmlEngine.h>

#include <QAccessible>
#include <QClipboard>
#include <QElapsedTimer>
#include <QMimeData>
#include <QQmlComponent>

using namespace Qt::StringLiterals;

namespace {

TestApplication *host()
{
    return qobject_cast<TestApplication *>(QCoreApplication::instance());
}

// A window that counts how often it is asked to close.
class Popup : public QWindow
{
    Q_OBJECT

public:
    explicit Popup(Qt::WindowFlags flags = Qt::FramelessWindowHint)
    {
        setFlags(flags);
        setGeometry(300, 200, 200, 100);
    }
    bool isUp()
    {
        show();
        return QTest::qWaitForWindowExposed(this);
    }
    int closes() const { return m_closes; }

protected:
    bool event(QEvent *event) override
    {
        m_closes += event->type() == QEvent::Close;
        return QWindow::event(event);
    }

private:
    int m_closes = 0;
};

bool moveCursor(const QPoint &position)
{
    QCursor::setPos(position);
    return QTest::qWaitFor([&] { return QCursor::pos() == position; });
}

bool moveCursorOver(const QWindow &window)
{
    return moveCursor(window.geometry().center());
}

bool moveCursorAway()
{
    return moveCursor({20, 20});
}

// A delayed close that begins now is through: so is any that began earlier.
bool delayPasses()
{
    QmlUtils utils;
    Popup popup;
    popup.setPosition(600, 500);
    utils.setPopupView(&popup);
    if (!popup.isUp())
        return false;
    utils.hidePopupView(true, true);
    return QTest::qWaitFor([&] { return !popup.isVisible(); });
}

using AccessibleEvents = QList<std::pair<QAccessible::Event, QObject *>>;
AccessibleEvents accessibleEvents;

const QMap<QString, QByteArray> Files{
    {u"/Qml/Popup.qml"_s,
     "import QtQuick\nimport LumakitQml 1.0\n"
     "Item { width: 200; height: 100; WQmlPopupController { }\n"
     "  function hide() { Utils.hidePopupView(false, true) } }"},
};

} // namespace

class tst_QmlUtils : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void metaObject();
    void reachedFromQml_data();
    void reachedFromQml();
    void drawsLayers() { QCOMPARE(QmlUtils().supportsLayers(), true); }
    void saysItem();

    void functionKeys();
    void keySequence_data();
    void keySequence();

    void paste_data();
    void paste();
    void pastesTextOnly();
    void copy();
    void copyNothing();

    void noPopup();
    void hide_data();
    void hide();
    void frameCounts();
    void hideLater_data();
    void hideLater();
    void decidesWhenItIsTime_data();
    void decidesWhenItIsTime();
    void cancel();
    void nextCallReplacesThePending();
    void popupGoesFirst();
    void utilsGoFirst();
    void answerAboutAnimationsIsKept();
    void popupsOfTheEngine();

protected:
    void prepare() override { QVERIFY(moveCursorAway()); }
    void tidy() override { host()->setAnimationsDisabled(false); }
};

void tst_QmlUtils::initTestCase()
{
    LKQmlRegister::registerLKQmlDataTypes();
    // The one time that the application is asked; nothing is to be delayed and there is no popup.
    QmlUtils().hidePopupView(false, false);
}

void tst_QmlUtils::metaObject()
{
    const QMetaObject &meta = QmlUtils::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(MetaDescription::invokables(meta),
             (QStringList{
                 u"bool supportsLayers()"_s,
                 u"void sayAccessible(QQuickItem*)"_s,
                 u"void hidePopupView(bool,bool)"_s,
                 u"void cancelHidePopupTimer()"_s,
                 u"QString pasteFromClipboard(QmlUtils::PasteOutput,QmlUtils::ClipboardMode)"_s,
                 u"void copyRichText(QString)"_s,
                 u"QString getKeySequence(Qt::KeyboardModifiers,Qt::Key)"_s,
             }));
    QCOMPARE(MetaDescription::enums(meta),
             (QStringList{u"PasteOutput: PlainText 0, PlainTextNoLineBreaks 1, RichText 2"_s,
                          u"ClipboardMode: Clipboard 0, Selection 1, FindBuffer 2, LastMode 3"_s}));
    QCOMPARE(MetaDescription::properties(meta), QStringList());
    QCOMPARE(MetaDescription::signalsOf(meta), QStringList());
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
}

void tst_QmlUtils::reachedFromQml_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("layers") << u"Utils.supportsLayers()"_s << QVariant(true);
    QTest::newRow("shortcut") << u"Utils.getKeySequence(Qt.ControlModifier | Qt.ShiftModifier, Qt.Key_A)"_s
                              << QVariant(u"Ctrl + Shift + A"_s);
    QTest::newRow("copied") << u"{ Utils.copyRichText('<b>a</b><br>b');"
                               " Utils.pasteFromClipboard(Utils.RichText, Utils.Clipboard) }"_s
                            << QVariant(u"<b>a</b><br>b"_s);
    QTest::newRow("pasted") << u"{ Utils.copyRichText('<b>a</b><br>b');"
                               " Utils.pasteFromClipboard(Utils.PlainTextNoLineBreaks, Utils.Clipboard) }"_s
                            << QVariant(u"ab"_s);
    QTest::newRow("nothing") << u"{ Utils.sayAccessible(null); Utils.hidePopupView(false, false);"
                                " Utils.cancelHidePopupTimer(); 7 }"_s
                             << QVariant(7);
}

void tst_QmlUtils::reachedFromQml()
{
    QFETCH(const QString, expression);
    QFETCH(const QVariant, value);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(
        "import QtQml\nimport LumakitQml 1.0\nQtObject { property var value: "_ba + expression.toUtf8() + " }", QUrl());
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QCOMPARE(object->property("value"), value);
}

void tst_QmlUtils::saysItem()
{
    accessibleEvents.clear();
    const auto previous = QAccessible::installUpdateHandler(
        [](QAccessibleEvent *event) { accessibleEvents << std::pair(event->type(), event->object()); });
    QAccessible::setActive(true);
    QQuickItem item;
    QmlUtils().sayAccessible(&item);
    QmlUtils().sayAccessible(nullptr);
    QAccessible::setActive(false);
    QAccessible::installUpdateHandler(previous);
    QCOMPARE(accessibleEvents, (AccessibleEvents{{QAccessible::Focus, &item}}));
    QCOMPARE(int(QAccessible::Focus), 0x8005);
}

// Alone, whatever is pressed with them.
void tst_QmlUtils::functionKeys()
{
    QmlUtils utils;
    for (int number = 1; number <= 12; ++number) {
        for (const Qt::KeyboardModifiers modifiers :
             {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier), Qt::AltModifier | Qt::ShiftModifier})
            QCOMPARE(utils.getKeySequence(modifiers, Qt::Key(Qt::Key_F1 + number - 1)), u"F%1"_s.arg(number));
    }
}

void tst_QmlUtils::keySequence_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, Qt::KeyboardModifiers modifiers, Qt::Key key, const QString &text) {
        QTest::newRow(name) << modifiers << key << text;
    };
    row("Ctrl + A", Qt::ControlModifier, Qt::Key_A, u"Ctrl + A"_s);
    row("Ctrl + Shift + A", Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_A, u"Ctrl + Shift + A"_s);
    row("all modifiers", Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier | Qt::MetaModifier, Qt::Key_1,
        u"Meta + Ctrl + Alt + Shift + 1"_s);
    row("Alt + Left", Qt::AltModifier, Qt::Key_Left, u"Alt + Left"_s);
    row("A alone", Qt::NoModifier, Qt::Key_A, u""_s);
    row("Print alone", Qt::NoModifier, Qt::Key_Print, u""_s);
    row("F13 alone", Qt::NoModifier, Qt::Key_F13, u""_s);
    row("Ctrl + F13", Qt::ControlModifier, Qt::Key_F13, u"Ctrl + F13"_s);
    row("Ctrl + Print", Qt::ControlModifier, Qt::Key_Print, u"Ctrl + PrtScn"_s);
    row("Alt + Shift + Print", Qt::AltModifier | Qt::ShiftModifier, Qt::Key_Print, u"Alt + Shift + PrtScn"_s);
    // The word is replaced, not the key.
    row("Ctrl + Printer", Qt::ControlModifier, Qt::Key_Printer, u"Ctrl + PrtScner"_s);
    // So is the sign.
    row("Ctrl + plus", Qt::ControlModifier, Qt::Key_Plus, u"Ctrl +  + "_s);
    for (const Qt::Key key : {Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta}) {
        const QByteArray name = QVariant::fromValue(key).toString().toLatin1();
        row(name + " alone", Qt::NoModifier, key, u""_s);
        row(name + " with Ctrl", Qt::ControlModifier, key, u""_s);
        row(name + " with Alt and Shift", Qt::AltModifier | Qt::ShiftModifier, key, u""_s);
    }
}

void tst_QmlUtils::keySequence()
{
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const Qt::Key, key);
    QFETCH(const QString, text);
    QCOMPARE(QmlUtils().getKeySequence(modifiers, key), text);
}

void tst_QmlUtils::paste_data()
{
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QmlUtils::PasteOutput>("option");
    QTest::addColumn<QmlUtils::ClipboardMode>("mode");
    QTest::addColumn<QString>("text");

    const auto PlainText = QmlUtils::PlainText;
    const auto NoLineBreaks = QmlUtils::PlainTextNoLineBreaks;
    const auto RichText = QmlUtils::RichText;
    const auto Clipboard = QmlUtils::Clipboard;
    const QString markup = u"<p>a <b>&lt;b&gt;</b></p><p>c</p>"_s;
    QTest::newRow("plain") << markup << u"s"_s << PlainText << Clipboard << u"a <b>\nc"_s;
    QTest::newRow("no line breaks") << markup << u"s"_s << NoLineBreaks << Clipboard << u"a <b>c"_s;
    QTest::newRow("rich") << markup << u"s"_s << RichText << Clipboard << markup;
    QTest::newRow("two lines") << u"a<br>b"_s << u"s"_s << NoLineBreaks << Clipboard << u"ab"_s;
    // Read as markup, a line break in a text without any is a space.
    QTest::newRow("text, plain") << u"a\nb"_s << u"s"_s << PlainText << Clipboard << u"a b"_s;
    QTest::newRow("text, rich") << u"a\nb"_s << u"s"_s << RichText << Clipboard << u"a\nb"_s;
    QTest::newRow("empty") << u""_s << u"s"_s << PlainText << Clipboard << u""_s;

    QTest::newRow("selection") << u"c"_s << u"<i>s</i>"_s << PlainText << QmlUtils::Selection << u"s"_s;
    QTest::newRow("selection, rich") << u"c"_s << u"<i>s</i>"_s << RichText << QmlUtils::Selection << u"<i>s</i>"_s;
    QTest::newRow("find buffer") << u"c"_s << u"s"_s << PlainText << QmlUtils::FindBuffer << u""_s; // none here
    QTest::newRow("last mode") << u"c"_s << u"s"_s << PlainText << QmlUtils::LastMode << u"c"_s;
    QTest::newRow("unknown mode") << u"c"_s << u"s"_s << PlainText << QmlUtils::ClipboardMode(9) << u"c"_s;
    QTest::newRow("negative mode") << u"c"_s << u"s"_s << RichText << QmlUtils::ClipboardMode(-1) << u"c"_s;
}

void tst_QmlUtils::paste()
{
    QFETCH(const QString, clipboard);
    QFETCH(const QString, selection);
    QFETCH(const QmlUtils::PasteOutput, option);
    QFETCH(const QmlUtils::ClipboardMode, mode);
    QFETCH(const QString, text);
    QGuiApplication::clipboard()->setText(clipboard);
    QGuiApplication::clipboard()->setText(selection, QClipboard::Selection);
    QCOMPARE(QmlUtils().pasteFromClipboard(option, mode), text);
}

// The text beside the markup that another program has copied.
void tst_QmlUtils::pastesTextOnly()
{
    auto data = std::make_unique<QMimeData>();
    data->setText(u"text"_s);
    data->setHtml(u"<b>markup</b>"_s);
    QGuiApplication::clipboard()->setMimeData(data.release());
    for (const auto option : {QmlUtils::PlainText, QmlUtils::PlainTextNoLineBreaks, QmlUtils::RichText})
        QCOMPARE(QmlUtils().pasteFromClipboard(option, QmlUtils::Clipboard), u"text"_s);
}

void tst_QmlUtils::copy()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->setText(u"selected"_s, QClipboard::Selection);
    QmlUtils().copyRichText(u"<b>a</b>\nb"_s);
    QCOMPARE(clipboard->text(), u"<b>a</b>\nb"_s);
    QCOMPARE(clipboard->mimeData()->hasHtml(), false); // the markup is the text
    QCOMPARE(clipboard->text(QClipboard::Selection), u"selected"_s);
    QmlUtils().copyRichText(u"c"_s);
    QCOMPARE(clipboard->text(), u"c"_s);
}

void tst_QmlUtils::copyNothing()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->setText(u"before"_s);
    const QSignalSpy changed(clipboard, &QClipboard::changed);
    QmlUtils().copyRichText(u""_s);
    QmlUtils().copyRichText(QString());
    QCOMPARE(clipboard->text(), u"before"_s);
    QCOMPARE(changed.size(), 0);
}

void tst_QmlUtils::noPopup()
{
    QmlUtils utils;
    utils.hidePopupView(false, true);
    utils.hidePopupView(true, true);
    utils.cancelHidePopupTimer();
    utils.cancelHidePopupTimer();
    utils.setPopupView(nullptr);
    utils.hidePopupView(false, false);
}

void tst_QmlUtils::hide_data()
{
    QTest::addColumn<bool>("force");
    QTest::addColumn<bool>("underCursor");
    QTest::addColumn<bool>("closed");
    QTest::newRow("asked") << false << false << true;
    QTest::newRow("asked, under the cursor") << false << true << false;
    QTest::newRow("forced") << true << false << true;
    QTest::newRow("forced, under the cursor") << true << true << true;
}

void tst_QmlUtils::hide()
{
    QFETCH(const bool, force);
    QFETCH(const bool, underCursor);
    QFETCH(const bool, closed);
    Popup popup;
    QVERIFY(popup.isUp());
    if (underCursor)
        QVERIFY(moveCursorOver(popup));
    QmlUtils utils;
    utils.setPopupView(&popup);
    utils.hidePopupView(false, force);
    QCOMPARE(popup.isVisible(), !closed);
    QCOMPARE(popup.closes(), int(closed));
}

// The cursor over the title bar is over the popup.
void tst_QmlUtils::frameCounts()
{
    Popup popup(Qt::Window);
    QVERIFY(popup.isUp());
    QTRY_VERIFY(popup.frameMargins().top() > 4);
    const QPoint onTitleBar = popup.frameGeometry().topLeft() + QPoint(50, 2);
    QVERIFY(!popup.geometry().contains(onTitleBar));
    QVERIFY(moveCursor(onTitleBar));
    QmlUtils utils;
    utils.setPopupView(&popup);
    utils.hidePopupView(false, false);
    QCOMPARE(popup.isVisible(), true);
    QVERIFY(moveCursor(popup.frameGeometry().topLeft() - QPoint(20, 20)));
    utils.hidePopupView(false, false);
    QCOMPARE(popup.isVisible(), false);
}

void tst_QmlUtils::hideLater_data()
{
    hide_data();
}

void tst_QmlUtils::hideLater()
{
    QFETCH(const bool, force);
    QFETCH(const bool, underCursor);
    QFETCH(const bool, closed);
    Popup popup;
    QVERIFY(popup.isUp());
    if (underCursor)
        QVERIFY(moveCursorOver(popup));
    QmlUtils utils;
    utils.setPopupView(&popup);
    QElapsedTimer elapsed;
    elapsed.start();
    utils.hidePopupView(true, force);
    QCOMPARE(popup.isVisible(), true);
    if (closed) {
        QTRY_COMPARE(popup.isVisible(), false);
        QVERIFY2(elapsed.elapsed() >= 450, qPrintable(u"%1 ms"_s.arg(elapsed.elapsed())));
        QCOMPARE(popup.closes(), 1);
    } else {
        QVERIFY(delayPasses());
        QCOMPARE(popup.isVisible(), true);
        QCOMPARE(popup.closes(), 0);
    }
}

void tst_QmlUtils::decidesWhenItIsTime_data()
{
    QTest::addColumn<bool>("cursorComes");
    QTest::newRow("the cursor comes") << true;
    QTest::newRow("the cursor goes") << false;
}

void tst_QmlUtils::decidesWhenItIsTime()
{
    QFETCH(const bool, cursorComes);
    Popup popup;
    QVERIFY(popup.isUp());
    QVERIFY(cursorComes ? moveCursorAway() : moveCursorOver(popup));
    QmlUtils utils;
    utils.setPopupView(&popup);
    utils.hidePopupView(true, false);
    QVERIFY(cursorComes ? moveCursorOver(popup) : moveCursorAway());
    QVERIFY(delayPasses());
    QCOMPARE(popup.isVisible(), cursorComes);
}

void tst_QmlUtils::cancel()
{
    Popup popup;
    QVERIFY(popup.isUp());
    QmlUtils utils;
    utils.setPopupView(&popup);
    utils.hidePopupView(true, false);
    utils.cancelHidePopupTimer();
    QVERIFY(delayPasses());
    QCOMPARE(popup.isVisible(), true);
    QCOMPARE(popup.closes(), 0);
    utils.hidePopupView(true, false); // not for good
    QTRY_COMPARE(popup.isVisible(), false);
}

// A pending forced close is forgotten, whether the next call is delayed or not.
void tst_QmlUtils::nextCallReplacesThePending()
{
    Popup popup;
    QVERIFY(popup.isUp());
    QVERIFY(moveCursorOver(popup));
    QmlUtils utils;
    utils.setPopupView(&popup);
    utils.hidePopupView(true, true);
    utils.hidePopupView(false, false);
    QVERIFY(delayPasses());
    QCOMPARE(popup.isVisible(), true);
    utils.hidePopupView(true, true);
    utils.hidePopupView(true, false);
    QVERIFY(delayPasses());
    QCOMPARE(popup.isVisible(), true);
    utils.hidePopupView(true, false);
    utils.hidePopupView(true, true);
    QTRY_COMPARE(popup.isVisible(), false);
    QCOMPARE(popup.closes(), 1);
}

void tst_QmlUtils::popupGoesFirst()
{
    auto popup = std::make_unique<Popup>();
    QVERIFY(popup->isUp());
    QmlUtils utils;
    utils.setPopupView(popup.get());
    utils.hidePopupView(true, true);
    popup.reset();
    QVERIFY(delayPasses());
    utils.hidePopupView(false, true);
}

void tst_QmlUtils::utilsGoFirst()
{
    Popup popup;
    QVERIFY(popup.isUp());
    auto utils = std::make_unique<QmlUtils>();
    utils->setPopupView(&popup);
    utils->hidePopupView(true, true);
    utils.reset();
    QVERIFY(delayPasses());
    QCOMPARE(popup.isVisible(), true);
}

// It was given before this test, for every instance.
void tst_QmlUtils::answerAboutAnimationsIsKept()
{
    host()->setAnimationsDisabled(true);
    Popup popup;
    QVERIFY(popup.isUp());
    QmlUtils utils;
    utils.setPopupView(&popup);
    utils.hidePopupView(true, true);
    QCOMPARE(popup.isVisible(), true);
    QTRY_COMPARE(popup.isVisible(), false);
}

void tst_QmlUtils::popupsOfTheEngine()
{
    const MemoryResources files(Files);
    host()->getQmlEngine();
    const QPointer<WPopupQuickView> first = WQmlEngine::createQmlPopup(u"Popup.qml"_s);
    const QPointer<WPopupQuickView> second = WQmlEngine::createQmlPopup(u"Popup.qml"_s);
    auto *utils = host()->getQmlEngine()->singletonInstance<QmlUtils *>("LumakitQml", "Utils");
    QVERIFY(utils);

    first->show();
    QVERIFY(QTest::qWaitForWindowExposed(first));
    utils->hidePopupView(false, true);
    QTRY_VERIFY(first.isNull());
    utils->hidePopupView(false, true);
    QVERIFY(second);

    second->show();
    QVERIFY(QTest::qWaitForWindowExposed(second));
    QVERIFY(QMetaObject::invokeMethod(second->rootObject(), "hide"));
    QTRY_VERIFY(second.isNull());
}

LUMAKIT_TEST_MAIN(tst_QmlUtils)
#include "tst_qmlutils.moc"
