#include <ComponentTest.h>

#include <TestApplication.h>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QTemporaryDir>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr int NoArrow = 0;
constexpr int Top = 1;
constexpr int Bottom = 2;
constexpr int Left = 3;
constexpr int Right = 4;

QQuickItem *itemOf(const QObject *object, const char *property)
{
    return object->property(property).value<QQuickItem *>();
}

// The item that a popup lives in on the window's overlay.
QQuickItem *popupItem(const QObject *popup)
{
    return itemOf(popup, "contentItem")->parentItem();
}

QRectF sceneRect(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(QPointF(), item->size()));
}

QAccessibleInterface *accessible(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

// While there is one, the library behaves as with a screen reader on.
class ScreenReader
{
public:
    ScreenReader() { QAccessible::setActive(true); }
    ~ScreenReader() { QAccessible::setActive(false); }
    Q_DISABLE_COPY_MOVE(ScreenReader)
};

void pressAccessible(QObject *object)
{
    accessible(object)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

} // namespace

class tst_Menus : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void toolTipStandsBesideItsItem_data();
    void toolTipStandsBesideItsItem();
    void toolTipAligns_data();
    void toolTipAligns();
    void toolTipFlips_data();
    void toolTipFlips();
    void toolTipPointsAtItsItemFromTheEdge();
    void toolTipHasRoomForItsText_data();
    void toolTipHasRoomForItsText();
    void toolTipColors_data();
    void toolTipColors();
    void toolTipIsAccessible();

    void systemToolTipShows();
    void systemToolTipTakesNoClicks();

    void menuKeys_data();
    void menuKeys();
    void menuKeysShowTheFocus_data();
    void menuKeysShowTheFocus();
    void menuItemTriggers_data();
    void menuItemTriggers();
    void heldKeyTriggersOnce_data();
    void heldKeyTriggersOnce();
    void menuItemIndicator_data();
    void menuItemIndicator();
    void menuWidth_data();
    void menuWidth();
    void menuAlignsItsTexts();
    void submenu_data();
    void submenu();
    void menuMirrors();
    void menuHighlight();
    void menuScrolls();
    void menuItemIsAccessible();
    void menuSeparatorMargins_data();
    void menuSeparatorMargins();

    void popupListHeight_data();
    void popupListHeight();
    void popupListRows();
    void popupListKeys_data();
    void popupListKeys();
    void popupListHeaders();
    void popupListStandsClearOfTheArrow_data();
    void popupListStandsClearOfTheArrow();
    void popupListReportsABadDelegate();

    void overflowListStandsClearOfTheBar_data();
    void overflowListStandsClearOfTheBar();

    void coachmarkCloses_data();
    void coachmarkCloses();
    void coachmarkStays();
    void coachmarkFocus_data();
    void coachmarkFocus();
    void coachmarkTexts();
    void coachmarkStaysInALowWindow_data();
    void coachmarkStaysInALowWindow();
    void coachmarkName_data();
    void coachmarkName();

    void dialogSignals_data();
    void dialogSignals();
    void dialogIllustration_data();
    void dialogIllustration();
    void dialogHasOnlyWhatItNeeds();
    void dialogHasTheCurrentButtons();
    void dialogButtonsWrap();
    void dialogStandsClearOfTheArrow_data();
    void dialogStandsClearOfTheArrow();
    void dialogIsAccessible();

    void escapeGivesTheFocusBack_data();
    void escapeGivesTheFocusBack();
    void escapeGivesTheFocusBackFromASubmenu();
    void focusThatWentElsewhereStays();
    void focusIsNotGivenToWhatIsGone_data();
    void focusIsNotGivenToWhatIsGone();
    void whatTakesNoFocusReturnsNone_data();
    void whatTakesNoFocusReturnsNone();

private:
    static bool hasRing(const QQuickItem *item);
    QObject *showToolTip(const QByteArray &item, const QByteArray &properties, const QByteArray &text = "Text");
    QObject *showPopupList(const QByteArray &properties, int rows = 3);
    QQuickItem *row(int index) const;

    static constexpr auto MenuQml = R"(
        Item {
            WMenu {
                objectName: 'menu'
                WMenuItem { objectName: 'first'; text: 'First' }
                WMenuSeparator {}
                WMenuItem { objectName: 'off'; text: 'Off'; enabled: false }
                WMenuItem { objectName: 'middle'; text: 'Middle' }
                WMenuItem { objectName: 'last'; text: 'Last' }
            }
        })";

    // Entries that can be chosen stand neither first nor last.
    static constexpr auto EdgesQml = R"(
        Item {
            WMenu {
                objectName: 'menu'
                WMenuSeparator {}
                WMenuItem { text: 'Off'; enabled: false }
                WMenuItem { text: 'Hidden'; visible: false }
                WMenuItem { objectName: 'first'; text: 'First' }
                WMenuItem { objectName: 'middle'; text: 'Middle' }
                WMenuItem { objectName: 'last'; text: 'Map' }
                WMenuItem { objectName: 'off'; text: 'More'; enabled: false }
                WMenuSeparator {}
            }
        })";
};

// A tooltip of an item that is 40 high, in a window of 400 x 300.
QObject *tst_Menus::showToolTip(const QByteArray &item, const QByteArray &properties, const QByteArray &text)
{
    show("Item { Item { objectName: 'item'; height: 40; " + item
         + "\nWToolTip { objectName: 'toolTip'; visible: true; text: '" + text + "'\n" + properties + "\n} } }");
    return find<QObject>(u"toolTip"_s);
}

void tst_Menus::toolTipStandsBesideItsItem_data()
{
    QTest::addColumn<int>("anchor");
    QTest::newRow("above, without an arrow") << NoArrow;
    QTest::newRow("below") << Top;
    QTest::newRow("above") << Bottom;
    QTest::newRow("to the right") << Left;
    QTest::newRow("to the left") << Right;
}

void tst_Menus::toolTipStandsBesideItsItem()
{
    QFETCH(const int, anchor);
    QObject *toolTip = showToolTip("x: 150; y: 120; width: 100", "arrowAnchor: " + QByteArray::number(anchor));
    QVERIFY(toolTip);
    QTRY_VERIFY(toolTip->property("opened").toBool());
    const QRectF item = sceneRect(find(u"item"_s));
    const QRectF tip = sceneRect(popupItem(toolTip));
    QCOMPARE(toolTip->property("shownArrowAnchor").toInt(), anchor);
    switch (anchor) {
    case Top:
        QCOMPARE(tip.top(), item.bottom());
        break;
    case Bottom:
        QCOMPARE(tip.bottom(), item.top());
        break;
    case Left:
        QCOMPARE(tip.left(), item.right());
        break;
    case Right:
        QCOMPARE(tip.right(), item.left());
        break;
    default:
        QVERIFY(tip.bottom() < item.top());
    }
    const bool beside = anchor == Left || anchor == Right;
    const double off = beside ? tip.center().y() - item.center().y() : tip.center().x() - item.center().x();
    QVERIFY2(std::abs(off) <= 0.5, QByteArray::number(off));
    auto *background = itemOf(toolTip, "background");
    QCOMPARE(background->property("arrowAnchor").toInt(), anchor);
    QCOMPARE(background->property("arrowSize").toInt(), toolTip->property("arrowSize").toInt());
}

void tst_Menus::toolTipAligns_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("tip"); // from the left or top edge; negative: from the right or bottom edge
    QTest::newRow("left") << QByteArray("arrowAlignment: WBalloon.LeftAlignment") << 16;
    QTest::newRow("right") << QByteArray("arrowAlignment: WBalloon.RightAlignment") << -16;
    QTest::newRow("left and moved") << QByteArray("arrowAlignment: WBalloon.LeftAlignment; arrowOffset: 10") << 26;
    QTest::newRow("beyond the corner") << QByteArray("arrowAlignment: WBalloon.RightAlignment; arrowOffset: 100")
                                       << -16;
    QTest::newRow("another radius and size")
        << QByteArray("arrowAlignment: WBalloon.LeftAlignment; radius: 4; arrowSize: 10") << 14;
    QTest::newRow("top, on a horizontal edge")
        << QByteArray("arrowAlignment: WBalloon.TopAlignment; implicitWidth: 120") << 60;
    QTest::newRow("top") << QByteArray("arrowAnchor: WBalloon.Left; arrowAlignment: WBalloon.TopAlignment; height: 80")
                         << 16;
    QTest::newRow("bottom") << QByteArray(
        "arrowAnchor: WBalloon.Right; arrowAlignment: WBalloon.BottomAlignment; height: 80")
                            << -16;
}

void tst_Menus::toolTipAligns()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const int, tip);
    QObject *toolTip = showToolTip("x: 150; y: 120; width: 100", properties, "A longer text");
    QVERIFY(toolTip);
    QTRY_VERIFY(toolTip->property("opened").toBool());
    const QRectF rect = sceneRect(popupItem(toolTip));
    const bool beside = toolTip->property("isBeside").toBool();
    const double start = beside ? rect.top() : rect.left();
    const double length = beside ? rect.height() : rect.width();
    const double target = beside ? 140 : 200; // the item's middle
    QCOMPARE(target - start, tip < 0 ? length + tip : tip);
    // The balloon paints the tip there, counted from its middle.
    const double painted = length / 2 + itemOf(toolTip, "background")->property("arrowOffset").toInt();
    QVERIFY(std::abs(painted - (target - start)) <= 0.5);
}

void tst_Menus::toolTipFlips_data()
{
    QTest::addColumn<QByteArray>("position");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("shown");
    QTest::newRow("above, no room") << QByteArray("x: 150; y: 5; width: 100") << Bottom << QByteArray() << Top;
    QTest::newRow("below, no room") << QByteArray("x: 150; y: 255; width: 100") << Top << QByteArray() << Bottom;
    QTest::newRow("right, no room") << QByteArray("x: 290; y: 120; width: 100") << Left << QByteArray() << Right;
    QTest::newRow("left, no room") << QByteArray("x: 10; y: 120; width: 100") << Right << QByteArray() << Left;
    QTest::newRow("may not") << QByteArray("x: 150; y: 5; width: 100") << Bottom << QByteArray("canFlip: false")
                             << Bottom;
    QTest::newRow("no room on either side")
        << QByteArray("x: 150; y: 5; width: 100") << Bottom << QByteArray("height: 280") << Bottom;
    QTest::newRow("room on both sides") << QByteArray("x: 150; y: 120; width: 100") << Bottom << QByteArray() << Bottom;
    QTest::newRow("no arrow") << QByteArray("x: 150; y: 5; width: 100") << NoArrow << QByteArray() << NoArrow;
}

void tst_Menus::toolTipFlips()
{
    QFETCH(const QByteArray, position);
    QFETCH(const int, anchor);
    QFETCH(const QByteArray, properties);
    QFETCH(const int, shown);
    QObject *toolTip = showToolTip(position, properties + "\narrowAnchor: " + QByteArray::number(anchor));
    QVERIFY(toolTip);
    QTRY_COMPARE(toolTip->property("shownArrowAnchor").toInt(), shown);
    QCOMPARE(itemOf(toolTip, "background")->property("arrowAnchor").toInt(), shown);
    QCOMPARE(toolTip->property("arrowAnchor").toInt(), anchor);
    if (shown == NoArrow || anchor == shown)
        return;
    // Opened again with room on its own side, it is there again.
    QVERIFY(QMetaObject::invokeMethod(toolTip, "close"));
    find(u"item"_s)->setPosition({150, 120});
    QVERIFY(QMetaObject::invokeMethod(toolTip, "open"));
    QCOMPARE(toolTip->property("shownArrowAnchor").toInt(), anchor);
}

void tst_Menus::toolTipPointsAtItsItemFromTheEdge()
{
    QObject *toolTip = showToolTip("y: 120; width: 60", {}, "A text that is wider than its item");
    QVERIFY(toolTip);
    const auto *item = popupItem(toolTip);
    QTRY_COMPARE(item->x(), 4.0); // the window's edge keeps it away from where it would be centred
    const double tip = item->x() + item->width() / 2 + itemOf(toolTip, "background")->property("arrowOffset").toInt();
    QVERIFY2(std::abs(tip - 30) <= 0.5, QByteArray::number(tip));
}

void tst_Menus::toolTipHasRoomForItsText_data()
{
    QTest::addColumn<float>("fontScaleFactor");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("horizontal"); // what is there beside the text
    QTest::addColumn<int>("vertical");
    QTest::newRow("by default") << 1.F << QByteArray() << 16 << 24;
    QTest::newRow("large font") << 1.5F << QByteArray() << 16 << 24;
    QTest::newRow("padding") << 1.F << QByteArray("textPadding: 4") << 8 << 16;
    QTest::newRow("horizontal and vertical padding")
        << 1.F << QByteArray("textHorizontalPadding: 20; textVerticalPadding: 2") << 40 << 12;
    QTest::newRow("arrow at the left") << 1.F << QByteArray("arrowAnchor: WBalloon.Left") << 24 << 16;
    QTest::newRow("no arrow") << 1.F << QByteArray("arrowAnchor: WBalloon.None") << 16 << 16;
}

void tst_Menus::toolTipHasRoomForItsText()
{
    QFETCH(const float, fontScaleFactor);
    QFETCH(const QByteArray, properties);
    QFETCH(const int, horizontal);
    QFETCH(const int, vertical);
    application()->setFontScaleFactor(fontScaleFactor);
    QObject *toolTip = showToolTip("x: 150; y: 120; width: 100", properties);
    QVERIFY(toolTip);
    auto *text = itemOf(toolTip, "contentItem");
    QCOMPARE(toolTip->property("width").toDouble(), std::ceil(text->implicitWidth()) + horizontal);
    QCOMPARE(toolTip->property("height").toDouble(), std::ceil(text->implicitHeight()) + vertical);
    QCOMPARE(text->property("lineCount").toInt(), 1);
    // A text that is too long wraps at the maximum width.
    toolTip->setProperty("maximumWidth", 120);
    toolTip->setProperty("text", u"<b>A text</b> that is longer than that"_s);
    QVERIFY(text->property("lineCount").toInt() > 1);
    QCOMPARE(text->width(), 120.0 - (toolTip->property("isBeside").toBool() ? horizontal - 8 : horizontal));
    QCOMPARE(toolTip->property("height").toDouble(), std::ceil(text->implicitHeight()) + vertical);
}

void tst_Menus::toolTipColors_data()
{
    QTest::addColumn<QString>("themeMode");
    QTest::newRow("default") << u"default"_s;
    QTest::newRow("dark") << u"dark"_s;
    QTest::newRow("highcontrast") << u"highcontrast"_s;
}

void tst_Menus::toolTipColors()
{
    QFETCH(const QString, themeMode);
    QObject *toolTip = showToolTip("x: 150; y: 120; width: 100", "textColorSetName: 'label-error-text'");
    QVERIFY(toolTip);
    if (application()->getThemeMode() != themeMode)
        application()->setThemeMode(themeMode);
    const auto *background = itemOf(toolTip, "background");
    const auto *text = itemOf(toolTip, "contentItem");
    QCOMPARE(text->property("color").value<QColor>(), application()->getColorSet(u"label-error-text"_s).normal);
    QCOMPARE(background->property("fillColor").value<QColor>(),
             application()->getColorSet(u"popover-primary-background"_s).normal);
    QCOMPARE(background->property("lineColor").value<QColor>(),
             application()->getColorSet(u"menulistbackground-primary-border"_s).normal);
    toolTip->setProperty("borderColorSetName", QString());
    QCOMPARE(background->property("lineColor").value<QColor>().alpha(), 0);
}

void tst_Menus::toolTipIsAccessible()
{
    const ScreenReader screenReader;
    QObject *toolTip = showToolTip("x: 150; y: 120; width: 100", {}, "<b>Plain</b>");
    QVERIFY(toolTip);
    auto *interface = accessible(popupItem(toolTip));
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::ToolTip);
    QCOMPARE(interface->text(QAccessible::Name), u"<b>Plain</b>"_s);
}

void tst_Menus::systemToolTipShows()
{
    QVERIFY(show("Item { WSystemToolTip { objectName: 'area'; width: 100; height: 40; text: 'Encrypted' } }"));
    auto *area = find(u"area"_s);
    moveMouseTo(area);
    QTRY_VERIFY(QToolTip::isVisible());
    QVERIFY(QToolTip::text().contains("Encrypted"_L1));
    moveMouseAway();
    QTRY_VERIFY(!QToolTip::isVisible());
    QCOMPARE(accessible(area)->role(), QAccessible::ToolTip);
    QCOMPARE(accessible(area)->text(QAccessible::Name), u"Encrypted"_s);
}

void tst_Menus::systemToolTipTakesNoClicks()
{
    QVERIFY(show("Item { WButton { objectName: 'button'; text: 'Press';"
                 "WSystemToolTip { anchors.fill: parent; text: 'Encrypted' } } }"));
    auto *button = find(u"button"_s);
    QSignalSpy triggered(button, SIGNAL(triggered()));
    click(button);
    QCOMPARE(triggered.count(), 1);
}

void tst_Menus::menuKeys_data()
{
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<QString>("triggered"); // nothing: the menu is still open
    QTest::addColumn<QByteArray>("qml");
    QByteArray qml = MenuQml;
    const auto key = [&qml](const char *name, const QList<Qt::Key> &keys, const QString &triggered) {
        QTest::newRow(name) << keys << triggered << qml;
    };
    key("down, return", {Qt::Key_Down, Qt::Key_Return}, u"first"_s);
    key("down, enter", {Qt::Key_Down, Qt::Key_Enter}, u"first"_s);
    key("down, space", {Qt::Key_Down, Qt::Key_Space}, u"first"_s);
    key("over the separator and what is disabled", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, u"middle"_s);
    key("end", {Qt::Key_Down, Qt::Key_End, Qt::Key_Return}, u"last"_s);
    key("page down", {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Return}, u"last"_s);
    key("home", {Qt::Key_Down, Qt::Key_End, Qt::Key_Home, Qt::Key_Return}, u"first"_s);
    key("page up", {Qt::Key_Down, Qt::Key_End, Qt::Key_PageUp, Qt::Key_Return}, u"first"_s);
    key("end, up", {Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_Return}, u"middle"_s);
    key("end at once", {Qt::Key_End, Qt::Key_Return}, u"last"_s);
    key("escape", {Qt::Key_Down, Qt::Key_Escape}, u"closed"_s);
    key("another key", {Qt::Key_Down, Qt::Key_F5}, {});
    key("up at once", {Qt::Key_Up, Qt::Key_Return}, u"last"_s);
    key("up, up", {Qt::Key_Up, Qt::Key_Up, Qt::Key_Return}, u"middle"_s);
    key("down from the last one", {Qt::Key_End, Qt::Key_Down, Qt::Key_Return}, u"first"_s);
    key("up from the first one", {Qt::Key_Home, Qt::Key_Up, Qt::Key_Return}, u"last"_s);
    key("a letter", {Qt::Key_M, Qt::Key_Return}, u"middle"_s);
    key("a letter of what is disabled", {Qt::Key_Down, Qt::Key_O, Qt::Key_Return}, u"first"_s);
    key("a word", {Qt::Key_L, Qt::Key_A, Qt::Key_Return}, u"last"_s);
    const std::pair<const char *, QByteArray> menus[] = {
        {"WMenu", EdgesQml}, {"LKContextMenu", QByteArray(EdgesQml).replace("WMenu ", "LKContextMenu ")}};
    for (const auto &[type, edges] : menus) {
        qml = edges;
        const auto edge = [&](const char *name, const QList<Qt::Key> &keys, const QString &triggered) {
            key(type + QByteArray(" of closed ends, ") + name, keys, triggered);
        };
        edge("down", {Qt::Key_Down, Qt::Key_Return}, u"first"_s);
        edge("up", {Qt::Key_Up, Qt::Key_Return}, u"last"_s);
        edge("home", {Qt::Key_Home, Qt::Key_Return}, u"first"_s);
        edge("end", {Qt::Key_End, Qt::Key_Return}, u"last"_s);
        edge("down from the last one", {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return}, u"first"_s);
        edge("up from the first one", {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}, u"last"_s);
        edge("the letter again", {Qt::Key_M, Qt::Key_M, Qt::Key_Return}, u"last"_s);
        edge("up from a letter", {Qt::Key_M, Qt::Key_Up, Qt::Key_Return}, u"first"_s);
    }
}

// Whichever key has chosen an entry, that is where the keyboard is.
void tst_Menus::menuKeysShowTheFocus_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("entry");
    QTest::newRow("down") << Qt::Key_Down << u"first"_s;
    QTest::newRow("up") << Qt::Key_Up << u"last"_s;
    QTest::newRow("home") << Qt::Key_Home << u"first"_s;
    QTest::newRow("end") << Qt::Key_End << u"last"_s;
    QTest::newRow("a letter") << Qt::Key_M << u"middle"_s;
}

void tst_Menus::menuKeysShowTheFocus()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const QString, entry);
    QVERIFY(show(MenuQml));
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    press(key);
    const auto *item = menu->findChild<QQuickItem *>(entry);
    QVERIFY(item->hasActiveFocus());
    QVERIFY(item->property("visualFocus").toBool());
    QVERIFY(item->property("highlighted").toBool());
}

void tst_Menus::menuKeys()
{
    QFETCH(const QList<Qt::Key>, keys);
    QFETCH(const QString, triggered);
    QFETCH(const QByteArray, qml);
    QVERIFY(show(qml));
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    std::map<QString, std::unique_ptr<QSignalSpy>> spies;
    for (const QString &name : {u"first"_s, u"off"_s, u"middle"_s, u"last"_s})
        spies[name] = std::make_unique<QSignalSpy>(menu->findChild<QObject *>(name), SIGNAL(triggered()));
    for (const Qt::Key key : keys)
        press(key);
    QCOMPARE(menu->property("visible").toBool(), triggered.isEmpty());
    for (const auto &[name, spy] : spies)
        QVERIFY2(spy->count() == (name == triggered ? 1 : 0), qPrintable(name));
}

void tst_Menus::menuItemTriggers_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("triggered");
    QTest::addColumn<int>("toggled");
    for (const QString &way : {u"mouse"_s, u"space"_s, u"return"_s, u"screen reader"_s}) {
        const QByteArray name = way.toUtf8();
        const int none = 0;
        QTest::newRow(name + ", plain") << way << QByteArray() << 1 << none;
        QTest::newRow(name + ", checkable") << way << QByteArray("checkable: true") << 1 << 1;
        QTest::newRow(name + ", checked") << way << QByteArray("checkable: true; checked: true") << 1 << 1;
        QTest::newRow(name + ", the checked one of several")
            << way << QByteArray("checkable: true; checked: true; ButtonGroup.group: ButtonGroup {}") << 1 << none;
        QTest::newRow(name + ", disabled") << way << QByteArray("checkable: true; enabled: false") << none << none;
    }
}

void tst_Menus::menuItemTriggers()
{
    QFETCH(const QString, way);
    QFETCH(const QByteArray, properties);
    QFETCH(const int, triggered);
    QFETCH(const int, toggled);
    QVERIFY(show("Item { WMenu { objectName: 'menu'; WMenuItem { text: 'Other' } WMenuItem { objectName: 'entry'; "
                 "text: 'Entry'\n"
                 + properties + "\n} } }"));
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    auto *entry = menu->findChild<QQuickItem *>(u"entry"_s);
    const bool checked = entry->property("checked").toBool();
    QSignalSpy triggers(entry, SIGNAL(triggered()));
    QSignalSpy toggles(entry, SIGNAL(toggled()));
    if (way == "mouse"_L1) {
        click(entry);
    } else if (way == "screen reader"_L1) {
        pressAccessible(entry);
    } else {
        press(Qt::Key_End); // not on the entry when that is disabled
        press(way == "space"_L1 ? Qt::Key_Space : Qt::Key_Return);
    }
    QCOMPARE(triggers.count(), triggered);
    QCOMPARE(toggles.count(), toggled);
    QCOMPARE(entry->property("checked").toBool(), checked != (toggled == 1));
    if (triggered)
        QTRY_VERIFY(!menu->property("visible").toBool());
}

void tst_Menus::heldKeyTriggersOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

void tst_Menus::heldKeyTriggersOnce()
{
    QFETCH(const int, key);
    QVERIFY(show("Item { WMenuItem { objectName: 'entry'; text: 'Entry' } }"));
    auto *entry = find(u"entry"_s);
    QSignalSpy triggers(entry, SIGNAL(triggered()));
    entry->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyPress(window(), Qt::Key(key));
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeated(type, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(window(), &repeated);
    }
    QTest::keyRelease(window(), Qt::Key(key));
    QCOMPARE(triggers.count(), 1);
}

void tst_Menus::menuItemIndicator_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("indicator");
    QTest::addColumn<bool>("hasIndicator");
    QTest::addColumn<bool>("hasArrow");
    QTest::newRow("plain") << QByteArray() << QString() << false << false;
    QTest::newRow("icon") << QByteArray("indicatorSvgName: 'copy'") << u"copy"_s << true << false;
    QTest::newRow("icon of an action") << QByteArray("action: Action { text: 'a'; icon.name: 'cut' }") << u"cut"_s
                                       << true << false;
    QTest::newRow("not checked") << QByteArray("checkable: true") << QString() << true << false;
    QTest::newRow("checked") << QByteArray("checkable: true; checked: true") << u"check-bold"_s << true << false;
    QTest::newRow("checked, with an icon")
        << QByteArray("checkable: true; checked: true; indicatorSvgName: 'copy'") << u"check-bold"_s << true << false;
    QTest::newRow("another tick") << QByteArray("checkable: true; checked: true; checkIndicatorSvgName: 'check'")
                                  << u"check"_s << true << false;
    QTest::newRow("room alone") << QByteArray("hasIndicator: true") << QString() << true << false;
    QTest::newRow("arrow") << QByteArray("hasArrow: true") << QString() << false << true;
}

void tst_Menus::menuItemIndicator()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, indicator);
    QFETCH(const bool, hasIndicator);
    QFETCH(const bool, hasArrow);
    QVERIFY(show("Item { WMenuItem { objectName: 'entry'; text: 'Entry'; " + properties
                 + " } WMenuItem { objectName: 'plain'; text: 'Entry' } }"));
    auto *entry = find(u"entry"_s);
    // What is not needed is not there.
    auto *icon = itemOf(itemOf(entry, "indicator"), "item");
    auto *arrow = itemOf(itemOf(entry, "arrow"), "item");
    QCOMPARE(icon != nullptr, !indicator.isEmpty());
    if (icon)
        QCOMPARE(icon->property("svgName").toString(), indicator);
    QCOMPARE(arrow != nullptr, hasArrow);
    if (arrow)
        QCOMPARE(arrow->property("svgName").toString(), u"chevron-right-bold"_s);
    QCOMPARE(itemOf(entry, "contentItem")->property("leftPadding").toInt(), hasIndicator ? 24 : 0);
    QCOMPARE(itemOf(entry, "contentItem")->property("rightPadding").toInt(), hasArrow ? 24 : 0);
    if (entry->property("text").toString() == "Entry"_L1)
        QCOMPARE(entry->implicitWidth(), find(u"plain"_s)->implicitWidth() + 24 * (int(hasIndicator) + int(hasArrow)));
    entry->setProperty("itemLeftRightPadding", 20);
    QCOMPARE(itemOf(entry, "indicator")->x(), 20.0);
}

void tst_Menus::menuWidth_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("width"); // 0: that of the entry and the paddings
    QTest::newRow("short") << QByteArray() << QByteArray("A") << 160;
    QTest::newRow("longer") << QByteArray() << QByteArray("An entry that needs more than the least") << 0;
    QTest::newRow("long") << QByteArray() << QByteArray(100, 'm') << 400;
    QTest::newRow("another maximum") << QByteArray("maximumWidth: 200") << QByteArray(100, 'm') << 200;
    QTest::newRow("another minimum") << QByteArray("minimumWidth: 40; menuPaddings: 10") << QByteArray("A") << 0;
}

void tst_Menus::menuWidth()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QByteArray, text);
    QFETCH(const int, width);
    QVERIFY(show("Item { width: 600; WMenu { objectName: 'menu'; " + properties
                 + "\nWMenuItem { objectName: 'entry' } WMenuItem { text: 'i' } } }"));
    auto *menu = find<QObject>(u"menu"_s);
    auto *entry = menu->findChild<QQuickItem *>(u"entry"_s);
    entry->setProperty("text", QString::fromLatin1(text));
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    const int padding = menu->property("menuPaddings").toInt() + 1;
    const double wanted = width == 0 ? std::ceil(entry->implicitWidth()) + 2 * padding : width;
    QCOMPARE(menu->property("width").toDouble(), wanted);
    QTRY_COMPARE(entry->width(), wanted - 2 * padding);
    QCOMPARE(sceneRect(entry).topLeft(), QPointF(4 + padding, 4 + padding)); // 4 to the window's edge
    // An entry that becomes longer makes the menu wider.
    entry->setProperty("text", u"Something else that is really long"_s);
    menu->setProperty("maximumWidth", 1000);
    QCOMPARE(menu->property("width").toDouble(),
             std::max(menu->property("minimumWidth").toDouble(), std::ceil(entry->implicitWidth()) + 2 * padding));
}

void tst_Menus::menuAlignsItsTexts()
{
    QVERIFY(show("Item { WMenu { objectName: 'menu'; WMenuItem { objectName: 'plain'; text: 'A' }"
                 "WMenuItem { objectName: 'icon'; text: 'B'; indicatorSvgName: 'copy' } } }"));
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    for (const QString &name : {u"plain"_s, u"icon"_s}) {
        auto *entry = menu->findChild<QQuickItem *>(name);
        QTRY_COMPARE(itemOf(entry, "contentItem")->property("leftPadding").toInt(), 24);
    }
}

void tst_Menus::submenu_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_Menus::submenu()
{
    QFETCH(const bool, mirrored);
    QVERIFY(show("Item { LayoutMirroring.enabled: " + QByteArray(mirrored ? "true" : "false")
                 + "; LayoutMirroring.childrenInherit: true; width: 600; height: 300"
                   "; Item { anchors.fill: parent; WMenu { objectName: 'menu'; x: 200"
                   "; WMenuItem { text: 'A' } WMenu { objectName: 'sub'; title: 'More'; WMenuItem { objectName: "
                   "'inner'; text: 'Inner' } } } } }"));
    auto *menu = find<QObject>(u"menu"_s);
    auto *sub = menu->findChild<QObject *>(u"sub"_s);
    QVERIFY(sub);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    QQuickItem *opener = nullptr;
    QVERIFY(QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem *, opener), 1));
    QVERIFY(opener->property("hasArrow").toBool());
    QCOMPARE(opener->property("text").toString(), u"More"_s);
    const Qt::Key into = mirrored ? Qt::Key_Left : Qt::Key_Right;
    const Qt::Key back = mirrored ? Qt::Key_Right : Qt::Key_Left;
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(into);
    QTRY_VERIFY(sub->property("opened").toBool());
    const QRectF outer = sceneRect(popupItem(menu));
    const QRectF inner = sceneRect(popupItem(sub));
    if (mirrored)
        QVERIFY2(inner.center().x() < outer.left(), QByteArray::number(inner.center().x()));
    else
        QVERIFY2(inner.center().x() > outer.right(), QByteArray::number(inner.center().x()));
    press(back);
    QTRY_VERIFY(!sub->property("visible").toBool());
    QVERIFY(menu->property("visible").toBool());
    press(into);
    QTRY_VERIFY(sub->property("opened").toBool());
    QSignalSpy triggered(sub->findChild<QObject *>(u"inner"_s), SIGNAL(triggered()));
    press(Qt::Key_Return);
    QCOMPARE(triggered.count(), 1);
    QTRY_VERIFY(!menu->property("visible").toBool());
}

void tst_Menus::menuMirrors()
{
    QVERIFY(show("Item { LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true; width: 400; height: 300"
                 "; Item { width: 300; height: 40; WMenu { objectName: 'menu'"
                 "; WMenuItem { objectName: 'entry'; text: 'A'; indicatorSvgName: 'copy'; hasArrow: true } } } }"));
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    auto *entry = menu->findChild<QQuickItem *>(u"entry"_s);
    QVERIFY(menu->property("mirrored").toBool());
    QVERIFY(entry->property("mirrored").toBool());
    QTRY_COMPARE(sceneRect(popupItem(menu)).right(), 300.0); // at the right edge of its item
    QCOMPARE(itemOf(entry, "indicator")->x(), entry->width() - 12 - 16);
    QCOMPARE(itemOf(entry, "arrow")->x(), 12.0);
    QCOMPARE(itemOf(itemOf(entry, "arrow"), "item")->property("svgName").toString(), u"chevron-left-bold"_s);
    QCOMPARE(itemOf(entry, "contentItem")->property("effectiveHorizontalAlignment").toInt(), int(Qt::AlignRight));
}

void tst_Menus::menuHighlight()
{
    QVERIFY(show(MenuQml));
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    const WColorSet colors = application()->getColorSet(u"listitem-background"_s);
    QVERIFY(colors.hovered != colors.normal);
    auto *first = menu->findChild<QQuickItem *>(u"first"_s);
    auto *last = menu->findChild<QQuickItem *>(u"last"_s);
    const auto color = [](const QQuickItem *entry) {
        return itemOf(entry, "itemBackGround")->property("color").value<QColor>();
    };
    QCOMPARE(itemOf(first, "itemBackGround"), itemOf(first, "background"));
    moveMouseTo(last);
    QTRY_COMPARE(color(last), colors.hovered);
    QCOMPARE(color(first), colors.normal);
    // The keys take the highlight away from under the cursor.
    press(Qt::Key_Home);
    QTRY_COMPARE(color(first), colors.hovered);
    QCOMPARE(color(last), colors.normal);
    QTest::mousePress(window(), Qt::LeftButton, {}, first->mapToScene({20, 10}).toPoint());
    QCOMPARE(color(first), colors.pressed);
    QTest::mouseRelease(window(), Qt::LeftButton, {}, {399, 299});
    const auto *off = menu->findChild<QQuickItem *>(u"off"_s);
    QCOMPARE(itemOf(off, "contentItem")->property("color").value<QColor>(),
             application()->getColorSet(u"listitem-textprimary"_s).disabled);
}

void tst_Menus::menuScrolls()
{
    QVERIFY(
        show("Item { id: root; WMenu { id: menu; objectName: 'menu'"
             "; Repeater { model: 0 } Instantiator { model: 20; onObjectAdded: (index, object) => menu.addItem(object)"
             "; WMenuItem { required property int index; text: index } } } }"));
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    auto *list = itemOf(menu, "contentItem");
    QTRY_COMPARE(menu->property("height").toDouble(), 292.0); // 4 to each edge of the window
    QVERIFY(list->property("interactive").toBool());
    press(Qt::Key_End);
    QQuickItem *last = nullptr;
    QVERIFY(QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem *, last), 19));
    QTRY_VERIFY(last->hasActiveFocus());
    QTRY_COMPARE(sceneRect(last).bottom(), sceneRect(list).bottom());
}

void tst_Menus::menuItemIsAccessible()
{
    const ScreenReader screenReader;
    QVERIFY(show(
        "Item { WMenu { objectName: 'menu'; WMenuItem { objectName: 'entry'; text: 'Wrap'; checkable: true } } }"));
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    auto *entry = menu->findChild<QQuickItem *>(u"entry"_s);
    QCOMPARE(accessible(popupItem(menu))->role(), QAccessible::PopupMenu);
    QCOMPARE(accessible(entry)->role(), QAccessible::MenuItem);
    QCOMPARE(accessible(entry)->text(QAccessible::Name), u"Wrap"_s);
    QVERIFY(accessible(entry)->state().checkable);
    QVERIFY(!accessible(entry)->state().checked);
    QSignalSpy triggered(entry, SIGNAL(triggered()));
    pressAccessible(entry);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(accessible(entry)->state().checked);
}

void tst_Menus::menuSeparatorMargins_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_Menus::menuSeparatorMargins()
{
    QFETCH(const bool, mirrored);
    QVERIFY(show("Item { WMenuSeparator { objectName: 'separator'; width: 200; LayoutMirroring.enabled: "
                 + QByteArray(mirrored ? "true" : "false")
                 + "; topMargin: 1; bottomMargin: 2; leftMargin: 30; rightMargin: 40 } }"));
    auto *separator = find(u"separator"_s);
    auto *line = itemOf(separator, "contentItem");
    QCOMPARE(separator->height(), 4.0);
    QCOMPARE(QRectF(line->position(), line->size()), QRectF(mirrored ? 40 : 30, 1, 130, 1));
    QCOMPARE(line->property("color").value<QColor>(), application()->getColorSet(u"separator-secondary"_s).normal);
    QCOMPARE(accessible(separator)->role(), QAccessible::Separator);
}

// A list of rows that count their clicks.
QObject *tst_Menus::showPopupList(const QByteArray &properties, int rows)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(u"Row.qml"_s);
    if (!QFile::exists(path)) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)
            || file.write(
                   "import QtQuick\nItem { signal clicked; required property string name; required property int index\n"
                   "objectName: 'row' + index }\n")
                < 0)
            return nullptr;
    }
    show("Item { WPopupList { id: list; objectName: 'list'; focus: true; property var seen: []\ndelegateSource: '"
         + QUrl::fromLocalFile(path).toEncoded() + "'\nsetupItemConnections: row => { seen.push(row.name); }\n"
         + "model: ListModel { Component.onCompleted: { for (let i = 0; i < " + QByteArray::number(rows)
         + "; ++i) append({ name: 'n' + i }); } }\n" + properties + "\n} }");
    return find<QObject>(u"list"_s);
}

QQuickItem *tst_Menus::row(int index) const
{
    QQuickItem *row = nullptr;
    QMetaObject::invokeMethod(itemOf(find(u"list"_s), "listView"), "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row),
                              index);
    return row;
}

void tst_Menus::popupListHeight_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("no rows") << 0 << QByteArray() << 16 << false;
    QTest::newRow("three rows") << 3 << QByteArray() << 16 + 3 * 32 << false;
    QTest::newRow("the most rows") << 8 << QByteArray() << 16 + 8 * 32 << false;
    QTest::newRow("more rows") << 9 << QByteArray() << 16 + 8 * 32 << true;
    QTest::newRow("another maximum") << 9 << QByteArray("maxVisibleItems: 2") << 16 + 2 * 32 << true;
    QTest::newRow("higher rows") << 3 << QByteArray("rowHeight: 50") << 16 + 3 * 50 << false;
    QTest::newRow("header") << 3 << QByteArray("hasHeader: true; headerHeight: 24") << 16 + 3 * 32 + 24 << false;
}

void tst_Menus::popupListHeight()
{
    QFETCH(const int, rows);
    QFETCH(const QByteArray, properties);
    QFETCH(const int, height);
    QFETCH(const bool, scrolls);
    auto *list = qobject_cast<QQuickItem *>(showPopupList(properties, rows));
    QVERIFY(list);
    QTRY_COMPARE(list->height(), height);
    QTRY_COMPARE(itemOf(list, "listView")->property("interactive").toBool(), scrolls);
}

void tst_Menus::popupListRows()
{
    QObject *list = showPopupList("rowHeight: 40");
    QVERIFY(list);
    QTRY_VERIFY(row(2));
    // Each row passed the host's function once, with its role.
    QCOMPARE(list->property("seen").toStringList(), QStringList({u"n0"_s, u"n1"_s, u"n2"_s}));
    QCOMPARE(row(1)->property("name").toString(), u"n1"_s);
    QCOMPARE(row(1)->size(), QSizeF(itemOf(list, "listView")->width(), 40));
    list->setProperty("rowHeight", 20);
    QCOMPARE(row(1)->height(), 20.0);
    const WColorSet background = application()->getColorSet(u"menulistbackground-primary-background"_s);
    QCOMPARE(itemOf(list, "balloon")->property("fillColor").value<QColor>(), background.normal);
    QCOMPARE(accessible(list)->role(), QAccessible::List);
}

void tst_Menus::popupListKeys_data()
{
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<int>("current");
    QTest::addColumn<QList<int>>("activated");
    const auto key = [](const char *name, const QList<Qt::Key> &keys, int current, const QList<int> &activated = {}) {
        QTest::newRow(name) << keys << current << activated;
    };
    key("down", {Qt::Key_Down}, 1);
    key("down, up", {Qt::Key_Down, Qt::Key_Up}, 0);
    key("up at the start", {Qt::Key_Up}, 0);
    key("end", {Qt::Key_End}, 19);
    key("down at the end", {Qt::Key_End, Qt::Key_Down}, 19);
    key("end, home", {Qt::Key_End, Qt::Key_Home}, 0);
    key("page down", {Qt::Key_PageDown}, 4); // one less than fits
    key("page down to the end",
        {Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown}, 19);
    key("page up", {Qt::Key_End, Qt::Key_PageUp}, 15);
    key("page up to the start", {Qt::Key_Down, Qt::Key_PageUp}, 0);
    key("enter", {Qt::Key_Enter}, 0, {0});
    key("return", {Qt::Key_Down, Qt::Key_Return}, 1, {1});
    key("space", {Qt::Key_End, Qt::Key_Space}, 19, {19});
    key("another key", {Qt::Key_A}, 0);
}

void tst_Menus::popupListKeys()
{
    QFETCH(const QList<Qt::Key>, keys);
    QFETCH(const int, current);
    QFETCH(const QList<int>, activated);
    QObject *list = showPopupList("maxVisibleItems: 5", 20);
    QVERIFY(list);
    QTRY_VERIFY(row(0));
    QSignalSpy spy(list, SIGNAL(activated(int)));
    qobject_cast<QQuickItem *>(list)->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : keys)
        press(key);
    QCOMPARE(itemOf(list, "listView")->property("currentIndex").toInt(), current);
    QTRY_VERIFY(row(current) && row(current)->hasActiveFocus()); // and it is in sight
    QList<int> rows;
    for (const QList<QVariant> &arguments : spy)
        rows += arguments.first().toInt();
    QCOMPARE(rows, activated);
}

void tst_Menus::popupListHeaders()
{
    QObject *list = showPopupList(
        "headerText: '<i>Pick</i>'; sideHeaderWidth: 30; padding: 10; sideHeader: Item { objectName: 'side' }", 2);
    QVERIFY(list);
    auto *view = itemOf(list, "listView");
    QTRY_COMPARE(view->mapToItem(qobject_cast<QQuickItem *>(list), QPointF()), QPointF(10, 10));
    QVERIFY(!find(u"side"_s)); // not made before it is needed
    list->setProperty("hasSideHeader", true);
    QTRY_COMPARE(view->mapToItem(qobject_cast<QQuickItem *>(list), QPointF()), QPointF(40, 10));
    QCOMPARE(find(u"side"_s)->size(), QSizeF(30, 64));
    list->setProperty("hasHeader", true);
    QTRY_COMPARE(view->mapToItem(qobject_cast<QQuickItem *>(list), QPointF()), QPointF(40, 50));
    QCOMPARE(view->height(), 64.0);
    QCOMPARE(accessible(list)->text(QAccessible::Name), u"<i>Pick</i>"_s);
}

void tst_Menus::popupListStandsClearOfTheArrow_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<QSizeF>("more");
    QTest::newRow("none") << NoArrow << QPointF(8, 8) << QSizeF(0, 0);
    QTest::newRow("top") << Top << QPointF(8, 18) << QSizeF(0, 10);
    QTest::newRow("bottom") << Bottom << QPointF(8, 8) << QSizeF(0, 10);
    QTest::newRow("left") << Left << QPointF(18, 8) << QSizeF(10, 0);
    QTest::newRow("right") << Right << QPointF(8, 8) << QSizeF(10, 0);
}

void tst_Menus::popupListStandsClearOfTheArrow()
{
    QFETCH(const int, anchor);
    QFETCH(const QPointF, position);
    QFETCH(const QSizeF, more);
    auto *list = qobject_cast<QQuickItem *>(showPopupList("listWidth: 200; balloon.arrowSize: 10", 2));
    QVERIFY(list);
    itemOf(list, "balloon")->setProperty("arrowAnchor", anchor);
    auto *view = itemOf(list, "listView");
    QTRY_COMPARE(list->size(), QSizeF(216, 80) + more);
    QTRY_COMPARE(view->mapToItem(list, QPointF()), position);
    QCOMPARE(view->size(), QSizeF(200, 64));
}

void tst_Menus::popupListReportsABadDelegate()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"NoSuchFile.qml"_s));
    QVERIFY(show("WPopupList { delegateSource: 'qrc:/Qml/NoSuchFile.qml'; model: 3 }"));
}

void tst_Menus::overflowListStandsClearOfTheBar_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_Menus::overflowListStandsClearOfTheBar()
{
    QFETCH(const bool, mirrored);
    QVERIFY(show("Item { Item { id: owner; width: 200; height: 20; LayoutMirroring.enabled: "
                 + QByteArray(mirrored ? "true" : "false")
                 + "; WButtonsOverflowList { objectName: 'list'; maximumVisibleRows: 3; model: [...'ABCDEFGH'] } } }"));
    auto *popup = find<QObject>(u"list"_s);
    QVERIFY(QMetaObject::invokeMethod(popup, "open"));
    auto *list = itemOf(popup, "contentItem");
    QQuickItem *first = nullptr;
    QTRY_VERIFY(QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, first), 0) && first);
    const auto items = list->childItems();
    const auto bar = std::find_if(items.begin(), items.end(),
                                  [](const QQuickItem *item) { return item->inherits("QQuickScrollBar"); });
    QVERIFY(bar != items.end());
    QTRY_COMPARE((*bar)->x(), mirrored ? 0.0 : list->width() - (*bar)->width());
    QTRY_COMPARE(first->mapToItem(list, QPointF()).x(), mirrored ? (*bar)->width() : 0.0);
    QCOMPARE(first->width(), list->width() - (*bar)->width());
}

void tst_Menus::coachmarkCloses_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("manualClosed");
    QTest::addColumn<bool>("closedByKey");
    QTest::newRow("mouse") << u"mouse"_s << 1 << false;
    QTest::newRow("escape") << u"escape"_s << 1 << true;
    QTest::newRow("space") << u"space"_s << 1 << true;
    QTest::newRow("return") << u"return"_s << 1 << true;
    QTest::newRow("screen reader") << u"accessible"_s << 1 << true;
    QTest::newRow("program") << u"program"_s << 0 << false;
}

void tst_Menus::coachmarkCloses()
{
    QFETCH(const QString, way);
    QFETCH(const int, manualClosed);
    QFETCH(const bool, closedByKey);
    QVERIFY(
        show("Item { Item { x: 150; y: 100; width: 50; height: 30; WCoachmark { objectName: 'mark'; titleText: 'Title'"
             "; visible: true; acquireFocusWhenShown: true } } }"));
    auto *mark = find<QObject>(u"mark"_s);
    auto *button = itemOf(mark, "closeButton");
    QVERIFY(button);
    QTRY_VERIFY(button->hasActiveFocus());
    QSignalSpy spy(mark, SIGNAL(manualClosed()));
    for (int opened = 1; opened <= 2; ++opened) {
        if (way == "mouse"_L1)
            click(button);
        else if (way == "escape"_L1)
            press(Qt::Key_Escape);
        else if (way == "space"_L1)
            press(Qt::Key_Space);
        else if (way == "return"_L1)
            press(Qt::Key_Return);
        else if (way == "accessible"_L1)
            pressAccessible(button);
        else
            QVERIFY(QMetaObject::invokeMethod(mark, "close"));
        QVERIFY(!mark->property("visible").toBool());
        QCOMPARE(spy.count(), manualClosed * opened);
        QCOMPARE(mark->property("closedByKey").toBool(), closedByKey);
        QVERIFY(QMetaObject::invokeMethod(mark, "open"));
        QVERIFY(!mark->property("closedByKey").toBool());
        QTRY_VERIFY(button->hasActiveFocus());
    }
    // A key after a click that closed nothing is still a key.
    QTest::mousePress(window(), Qt::LeftButton, {}, button->mapToScene({4, 4}).toPoint());
    QTest::mouseRelease(window(), Qt::LeftButton, {}, {2, 2});
    QVERIFY(mark->property("visible").toBool());
    QCoreApplication::processEvents();
    button->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QVERIFY(mark->property("closedByKey").toBool());
}

void tst_Menus::coachmarkStays()
{
    QVERIFY(show("Item { Item { x: 150; y: 100; width: 50; height: 30"
                 "; WCoachmark { objectName: 'mark'; titleText: 'Title'; visible: true } } }"));
    auto *mark = find<QObject>(u"mark"_s);
    QTRY_VERIFY(mark->property("opened").toBool());
    QTest::mouseClick(window(), Qt::LeftButton, {}, {5, 5});
    click(popupItem(mark), {20, 20});
    QVERIFY(mark->property("visible").toBool());
}

void tst_Menus::coachmarkFocus_data()
{
    QTest::addColumn<bool>("acquire");
    QTest::newRow("takes the focus") << true;
    QTest::newRow("leaves the focus") << false;
}

void tst_Menus::coachmarkFocus()
{
    QFETCH(const bool, acquire);
    QVERIFY(show("Item { TextInput { objectName: 'input'; focus: true; WCoachmark { objectName: 'mark'; bodyText: "
                 "'Body' } } }"));
    auto *mark = find<QObject>(u"mark"_s);
    auto *input = find(u"input"_s);
    QVERIFY(input->hasActiveFocus());
    mark->setProperty("acquireFocusWhenShown", acquire);
    QVERIFY(QMetaObject::invokeMethod(mark, "open"));
    QCOMPARE(itemOf(mark, "closeButton")->hasActiveFocus(), acquire);
    QCOMPARE(input->hasActiveFocus(), !acquire);
    QVERIFY(QMetaObject::invokeMethod(mark, "close"));
    QTRY_VERIFY(input->hasActiveFocus());
}

void tst_Menus::coachmarkTexts()
{
    QVERIFY(show("Item { Item { x: 150; y: 100; width: 50; height: 30; WCoachmark { objectName: 'mark'; visible: true"
                 "; titleText: 'Title'; bodyText: 'A body that needs more than a line'; maximumWidth: 160"
                 "; coachMarkBodyObjName: 'theBody' } } }"));
    auto *mark = find<QObject>(u"mark"_s);
    auto *title = mark->findChild<QQuickItem *>(u"coachMarkTitle"_s);
    auto *body = mark->findChild<QQuickItem *>(u"theBody"_s);
    QVERIFY(title && body);
    QCOMPARE(title->property("text").toString(), u"Title"_s);
    QVERIFY(body->property("lineCount").toInt() > 1);
    QCOMPARE(title->property("color").value<QColor>(),
             application()->getColorSet(u"coachmarkteaching-button-secondary-text"_s).normal);
    QTRY_VERIFY(sceneRect(popupItem(mark)).contains(sceneRect(body)));
    QVERIFY(sceneRect(body).top() >= sceneRect(title).bottom());
    QVERIFY(!sceneRect(itemOf(mark, "closeButton")).intersects(sceneRect(title)));
    QCOMPARE(accessible(itemOf(mark, "closeButton"))->text(QAccessible::Name), u"Close"_s);
    mark->setProperty("titleText", QString());
    QVERIFY(!title->isVisible());
    QTRY_VERIFY(sceneRect(body).top() - sceneRect(popupItem(mark)).top() < 24);
}

void tst_Menus::coachmarkStaysInALowWindow_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("as it is") << false;
    QTest::newRow("mirrored") << true;
}

void tst_Menus::coachmarkStaysInALowWindow()
{
    QFETCH(const bool, mirrored);
    QVERIFY(
        show("Item { width: 400; height: 300; Item { x: 150; y: 240; width: 50; height: 30; LayoutMirroring.enabled: "
             + QByteArray(mirrored ? "true" : "false")
             + "; WCoachmark { objectName: 'mark'; visible: true; acquireFocusWhenShown: true; titleText: 'Title'"
               "; bodyText: 'A body that is too long for the window. '.repeat(40) } } }"));
    auto *mark = find<QObject>(u"mark"_s);
    QTRY_VERIFY(mark->property("opened").toBool());
    const QRectF frame = sceneRect(popupItem(mark));
    QVERIFY(QRectF(0, 0, 400, 300).contains(frame));
    const auto *title = mark->findChild<QQuickItem *>(u"coachMarkTitle"_s);
    auto *body = mark->findChild<QQuickItem *>(u"coachMarkBody"_s);
    auto *view = body->parentItem()->parentItem()->parentItem();
    QVERIFY(frame.contains(sceneRect(view)));
    QVERIFY(view->clip());
    QVERIFY(frame.contains(sceneRect(itemOf(mark, "closeButton"))));
    QVERIFY(!sceneRect(view).intersects(sceneRect(itemOf(mark, "closeButton"))));
    QVERIFY(sceneRect(view).contains(sceneRect(title)));
    for (int i = 0; i < 100; ++i)
        press(Qt::Key_Down);
    QCOMPARE(sceneRect(body).bottom(), sceneRect(view).bottom());
    for (int i = 0; i < 100; ++i)
        press(Qt::Key_Up);
    QVERIFY(sceneRect(view).contains(sceneRect(title)));
}

void tst_Menus::coachmarkName_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("name");
    QTest::newRow("both") << u"Title"_s << u"Body"_s << u"Title. Body"_s;
    QTest::newRow("title") << u"Title"_s << QString() << u"Title"_s;
    QTest::newRow("body") << QString() << u"Body"_s << u"Body"_s;
}

void tst_Menus::coachmarkName()
{
    const ScreenReader screenReader;
    QFETCH(const QString, title);
    QFETCH(const QString, body);
    QFETCH(const QString, name);
    QVERIFY(show("Item { WCoachmark { objectName: 'mark'; visible: true } }"));
    auto *mark = find<QObject>(u"mark"_s);
    mark->setProperty("titleText", title);
    mark->setProperty("bodyText", body);
    QCOMPARE(accessible(popupItem(mark))->text(QAccessible::Name), name);
    mark->setProperty("accessibleName", u"Another"_s);
    QCOMPARE(accessible(popupItem(mark))->text(QAccessible::Name), u"Another"_s);
}

void tst_Menus::dialogSignals_data()
{
    QTest::addColumn<QString>("name"); // of the button; none: Escape
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("close") << u"Close"_s << QByteArray("closeButtonClicked()");
    QTest::newRow("left") << u"Later"_s << QByteArray("leftPillButtonClicked()");
    QTest::newRow("right") << u"Try"_s << QByteArray("rightPillButtonClicked()");
    QTest::newRow("link") << u"More"_s << QByteArray("hyperLinkButtonClicked()");
    QTest::newRow("escape") << QString() << QByteArray("closeButtonClicked()");
}

void tst_Menus::dialogSignals()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, expected);
    QVERIFY(show("FocusScope { focus: true; WFTEDialog { objectName: 'dialog'; titleText: 'New'; messageText: 'Message'"
                 "; leftPillButtonText: 'Later'; rightPillButtonText: 'Try'; hyperLinkButtonText: 'More' } }"));
    auto *dialog = find(u"dialog"_s);
    const QByteArray signatures[] = {"closeButtonClicked()", "leftPillButtonClicked()", "rightPillButtonClicked()",
                                     "hyperLinkButtonClicked()"};
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (const QByteArray &signature : signatures)
        spies.push_back(std::make_unique<QSignalSpy>(dialog, "2" + signature));
    // Every button can be reached with Tab.
    QQuickItem *button = nullptr;
    for (int i = 0; i < 6 && !button; ++i) {
        press(Qt::Key_Tab);
        QQuickItem *item = window()->activeFocusItem();
        if (name.isEmpty() || accessible(item)->text(QAccessible::Name) == name)
            button = item;
    }
    QVERIFY(button);
    if (name.isEmpty()) {
        press(Qt::Key_Escape);
    } else {
        press(Qt::Key_Space);
        click(button);
    }
    for (size_t i = 0; i < spies.size(); ++i)
        QCOMPARE(spies[i]->count(), signatures[i] != expected ? 0 : name.isEmpty() ? 1 : 2);
}

void tst_Menus::dialogIllustration_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QByteArray>("type"); // none: no illustration
    const QByteArray all = "svgIconName: 'star'; svgImageName: 'logo'; ";
    QTest::newRow("none") << QByteArray() << QByteArray();
    QTest::newRow("icon") << QByteArray("svgIconName: 'star'") << QByteArray("WSvgIcon");
    QTest::newRow("picture of the resources") << all << QByteArray("WSvgImage");
    QTest::newRow("image") << all + "imageSource: 'qrc:/Resources/star.svg'" << QByteArray("WImage");
    QTest::newRow("animated image") << all + "gifSource: 'qrc:/Resources/star.svg'"
                                    << QByteArray("QQuickAnimatedImage");
    QTest::newRow("movie source") << all + "dynamicSource: ' '" << QByteArray("WDynamicAnimatedImage");
}

void tst_Menus::dialogIllustration()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QByteArray, type);
    QVERIFY(show("Item { WFTEDialog { objectName: 'dialog'; closeButtonVisible: false; illustrationWidth: 200"
                 "; illustrationHeight: 100; dialogMargins: 20; titleText: 'Title'; "
                 + properties + " } }"));
    auto *dialog = find(u"dialog"_s);
    QQuickItem *found = nullptr;
    const auto items = dialog->findChildren<QQuickItem *>();
    for (QQuickItem *item : items) {
        const QByteArray name = item->metaObject()->className();
        const auto isOf = [&name](const QByteArray &kind) { return name == kind || name.startsWith(kind + "_QML"); };
        if (isOf("WSvgIcon") || isOf("WSvgImage") || isOf("WImage") || isOf("QQuickAnimatedImage")
            || isOf("WDynamicAnimatedImage")) {
            QVERIFY2(!found && isOf(type), name);
            found = item;
        }
    }
    QCOMPARE(found != nullptr, !type.isEmpty());
    QCOMPARE(dialog->width(), 240.0);
    if (!found)
        return;
    QTRY_COMPARE(sceneRect(found).center(), QPointF(120, 70));
    QCOMPARE(found->size(), type == "WSvgIcon" ? QSizeF(100, 100) : QSizeF(200, 100));
    if (type == "WSvgIcon") {
        QCOMPARE(found->property("svgColor").value<QColor>(),
                 application()->getColorSet(u"interactiveicon-primary-filled-icon-active"_s).normal);
    }
}

void tst_Menus::dialogHasOnlyWhatItNeeds()
{
    QVERIFY(show("Item { WFTEDialog { objectName: 'dialog'; closeButtonVisible: false } }"));
    auto *dialog = find(u"dialog"_s);
    const auto buttons = [dialog] {
        int count = 0;
        const auto items = dialog->findChildren<QQuickItem *>();
        for (const QQuickItem *item : items)
            count += item->inherits("QQuickButton") ? 1 : 0;
        return count;
    };
    QCOMPARE(buttons(), 0);
    QTRY_COMPARE(dialog->height(), 48.0);
    dialog->setProperty("messageText", u"Message"_s);
    QTRY_VERIFY(dialog->height() > 48);
    dialog->setProperty("leftPillButtonText", u"Left"_s);
    QCOMPARE(buttons(), 1);
    dialog->setProperty("closeButtonVisible", true);
    QCOMPARE(buttons(), 2);
    const double width = dialog->width();
    dialog->setProperty("arrowAnchor", Left);
    QTRY_COMPARE(dialog->width(), width + dialog->property("arrowSize").toInt());
}

void tst_Menus::dialogHasTheCurrentButtons()
{
    QVERIFY(show("Item { WFTEDialog { objectName: 'dialog'; leftPillButtonText: 'Later'; rightPillButtonText: 'Try'; "
                 "hyperLinkButtonText: 'More' } }"));
    QHash<QString, QByteArray> types;
    const auto items = find(u"dialog"_s)->findChildren<QQuickItem *>();
    for (const QQuickItem *item : items) {
        if (item->inherits("QQuickButton"))
            types[item->property("text").toString()] = item->metaObject()->className();
    }
    QVERIFY2(types[u"Later"_s].startsWith("LKPillButton"), types[u"Later"_s]);
    QVERIFY2(types[u"Try"_s].startsWith("LKPillButton"), types[u"Try"_s]);
    QVERIFY2(types[u"More"_s].startsWith("LKHyperlinkButton"), types[u"More"_s]);
}

void tst_Menus::dialogButtonsWrap()
{
    QVERIFY(
        show("Item { WFTEDialog { objectName: 'dialog'; leftPillButtonText: 'Later'; rightPillButtonText: 'Try' } }"));
    auto *dialog = find(u"dialog"_s);
    const auto button = [dialog](const QString &text) -> QQuickItem * {
        const auto items = dialog->findChildren<QQuickItem *>();
        for (QQuickItem *item : items) {
            if (item->inherits("QQuickButton") && item->property("text").toString() == text)
                return item;
        }
        return nullptr;
    };
    auto *left = button(u"Later"_s);
    auto *right = button(u"Try"_s);
    QVERIFY(left && right);
    QTRY_COMPARE(sceneRect(left).right() + 8, sceneRect(right).left());
    QCOMPARE(sceneRect(left).top(), sceneRect(right).top());
    const double height = dialog->height();
    dialog->setProperty("leftPillButtonText", u"Vielleicht zu einem anderen Zeitpunkt"_s);
    QTRY_COMPARE(sceneRect(left).bottom() + 8, sceneRect(right).top());
    QCOMPARE(sceneRect(left).right(), sceneRect(right).right());
    QTRY_VERIFY(dialog->height() > height);
    dialog->setProperty("rightPillButtonEnabled", false);
    QVERIFY(!right->isEnabled());
    QVERIFY(left->isEnabled());
}

void tst_Menus::dialogStandsClearOfTheArrow_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<QRectF>("illustration");
    for (const bool mirrored : {false, true}) {
        const QByteArray suffix = mirrored ? ", mirrored" : "";
        QTest::newRow("none" + suffix) << NoArrow << mirrored << QRectF(20, 20, 200, 100);
        QTest::newRow("top" + suffix) << Top << mirrored << QRectF(20, 30, 200, 100);
        QTest::newRow("bottom" + suffix) << Bottom << mirrored << QRectF(20, 20, 200, 100);
        QTest::newRow("left" + suffix) << Left << mirrored << QRectF(30, 20, 200, 100);
        QTest::newRow("right" + suffix) << Right << mirrored << QRectF(20, 20, 200, 100);
    }
}

void tst_Menus::dialogStandsClearOfTheArrow()
{
    QFETCH(const int, anchor);
    QFETCH(const bool, mirrored);
    QFETCH(const QRectF, illustration);
    QVERIFY(
        show("Item { LayoutMirroring.childrenInherit: true; LayoutMirroring.enabled: "
             + QByteArray(mirrored ? "true" : "false")
             + "; WFTEDialog { objectName: 'dialog'; dialogMargins: 20; illustrationWidth: 200; illustrationHeight: 100"
               "; gifSource: 'qrc:/Resources/star.svg' } }"));
    auto *dialog = find(u"dialog"_s);
    dialog->setProperty("arrowAnchor", anchor);
    dialog->setProperty("arrowSize", 10);
    const auto items = dialog->findChildren<QQuickItem *>();
    const auto image = std::find_if(items.begin(), items.end(),
                                    [](const QQuickItem *item) { return item->inherits("QQuickAnimatedImage"); });
    QVERIFY(image != items.end());
    QTRY_COMPARE(sceneRect(*image).translated(-dialog->position()), illustration);
    const bool beside = anchor == Left || anchor == Right;
    QTRY_COMPARE(dialog->width(), beside ? 250.0 : 240.0);
    QTRY_COMPARE(dialog->height(), beside || anchor == NoArrow ? 140.0 : 150.0);
}

void tst_Menus::dialogIsAccessible()
{
    QVERIFY(show("Item { WFTEDialog { objectName: 'dialog'; titleText: 'Title'; messageText: 'Message' } }"));
    auto *interface = accessible(find(u"dialog"_s));
    QCOMPARE(interface->role(), QAccessible::Dialog);
    QCOMPARE(interface->text(QAccessible::Name), u"Title"_s);
    QCOMPARE(interface->text(QAccessible::Description), u"Message"_s);
}

bool tst_Menus::hasRing(const QQuickItem *item)
{
    const auto children = item->childItems();
    return std::any_of(children.begin(), children.end(), [](const QQuickItem *child) {
        return child->isVisible() && child->inherits("QQuickPaintedItem");
    });
}

void tst_Menus::escapeGivesTheFocusBack_data()
{
    QTest::addColumn<QByteArray>("place"); // %1 is the button with the popup beside it
    QTest::addColumn<QByteArray>("popup");
    const std::pair<const char *, QByteArray> places[] = {
        {"beside another", "Item { WButton { text: 'Other' } %1 }"},
        {"in a scope", "Item { WButton { text: 'Other' } FocusScope { FocusScope { WButton { text: 'Inner' } %1 } } }"},
        {"in a focus manager",
         "Item { LKFocusManager { width: 100; height: 40; focusableItems: [button]; "
         "forceNavigation: true; %1 } }"},
        {"in a popup",
         "Item { WButton { text: 'Other' } T.Popup { visible: true; focus: true; width: 100; height: 40; "
         "Item { %1 } } }"},
    };
    const QByteArray item = "visible: false; function open() { visible = true; forceActiveFocus(Qt.PopupFocusReason); }"
                            "Keys.onEscapePressed: visible = false; ";
    const std::pair<const char *, QByteArray> popups[] = {
        {"WMenu", "WMenu { objectName: 'popup'; WMenuItem { text: 'Entry' } }"},
        {"LKContextMenu", "LKContextMenu { objectName: 'popup'; LKContextMenuItem { text: 'Entry' } }"},
        {"WCoachmark", "WCoachmark { objectName: 'popup'; acquireFocusWhenShown: true; titleText: 'Title' }"},
        {"WComboBox", "WComboBox { id: button; model: 3; popup.objectName: 'popup' }"},
        {"LKComboBox", "LKComboBox { id: button; model: 3; popup.objectName: 'popup' }"},
        {"LKMenu", "LKMenu { objectName: 'popup'; model: ['Entry']; " + item + "}"},
        {"LKMenu of a popup", "T.Popup { objectName: 'popup'; focus: true; LKMenu { focus: true; model: ['Entry'] } }"},
        {"WPopupList", "WPopupList { objectName: 'popup'; model: 1; " + item + "}"},
        {"WFTEDialog",
         "WFTEDialog { objectName: 'popup'; rightPillButtonText: 'Try'; visible: false; "
         "onCloseButtonClicked: visible = false; "
         "function open() { visible = true; forceActiveFocus(Qt.PopupFocusReason); } }"},
    };
    for (const auto &[where, place] : places) {
        for (const auto &[type, popup] : popups)
            QTest::addRow("%s %s", type, where) << place << popup;
    }
}

void tst_Menus::escapeGivesTheFocusBack()
{
    QFETCH(QByteArray, place);
    QFETCH(QByteArray, popup);
    if (!popup.contains("id: button"))
        popup.prepend("WButton { id: button; text: 'Opener' } ");
    QVERIFY(show(place.replace("%1", popup + " Item { objectName: 'button'; property Item item: button }")));
    auto *button = itemOf(root()->findChild<QObject *>(u"button"_s), "item");
    auto *shown = root()->findChild<QObject *>(u"popup"_s);
    QVERIFY(button && shown);
    button->forceActiveFocus(Qt::TabFocusReason);
    QVERIFY(button->hasActiveFocus() && hasRing(button));
    for (int time = 0; time < 2; ++time) {
        QVERIFY(QMetaObject::invokeMethod(shown, "open"));
        QTRY_VERIFY(shown->property("visible").toBool());
        QCOMPARE(button->hasActiveFocus(), button->inherits("QQuickComboBox"));
        press(Qt::Key_Escape);
        QTRY_VERIFY(!shown->property("visible").toBool());
        QCOMPARE(window()->activeFocusItem(), button);
        QVERIFY(hasRing(button));
    }
}

void tst_Menus::escapeGivesTheFocusBackFromASubmenu()
{
    QVERIFY(show("Item { FocusScope { WButton { objectName: 'button'; text: 'Opener' } WMenu { objectName: 'menu'; "
                 "WMenuItem { text: 'Entry' } WMenu { objectName: 'submenu'; title: 'More'; WMenuItem { objectName: "
                 "'inner'; text: 'Inner' } } } } }"));
    auto *button = find(u"button"_s);
    auto *menu = find<QObject>(u"menu"_s);
    auto *submenu = menu->findChild<QObject *>(u"submenu"_s);
    const auto openBoth = [&] {
        button->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(QMetaObject::invokeMethod(menu, "open"));
        press(Qt::Key_Up);
        press(Qt::Key_Right);
        QTRY_VERIFY(submenu->property("opened").toBool());
    };
    openBoth();
    press(Qt::Key_Left);
    QTRY_VERIFY(!submenu->property("visible").toBool());
    QCOMPARE(window()->activeFocusItem()->property("text").toString(), u"More"_s);
    press(Qt::Key_Escape);
    QCOMPARE(window()->activeFocusItem(), button);
    QVERIFY(hasRing(button));
    // What is chosen closes both.
    openBoth();
    press(Qt::Key_Return);
    QTRY_VERIFY(!menu->property("visible").toBool());
    QCOMPARE(window()->activeFocusItem(), button);
}

void tst_Menus::focusThatWentElsewhereStays()
{
    QVERIFY(show("Item { WButton { objectName: 'button'; text: 'Opener' } TextInput { objectName: 'input' } "
                 "WCoachmark { objectName: 'mark'; titleText: 'Title'; acquireFocusWhenShown: true } }"));
    find(u"button"_s)->forceActiveFocus(Qt::TabFocusReason);
    auto *mark = find<QObject>(u"mark"_s);
    QVERIFY(QMetaObject::invokeMethod(mark, "open"));
    QVERIFY(itemOf(mark, "closeButton")->hasActiveFocus());
    find(u"input"_s)->forceActiveFocus(Qt::MouseFocusReason);
    QVERIFY(QMetaObject::invokeMethod(mark, "close"));
    QCOMPARE(window()->activeFocusItem(), find(u"input"_s));
}

void tst_Menus::focusIsNotGivenToWhatIsGone_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::newRow("hidden") << QByteArray("visible");
    QTest::newRow("disabled") << QByteArray("enabled");
    QTest::newRow("destroyed") << QByteArray();
}

void tst_Menus::focusIsNotGivenToWhatIsGone()
{
    QFETCH(const QByteArray, property);
    QVERIFY(show("Item { FocusScope { WButton { objectName: 'button'; text: 'Opener' } } "
                 "WMenu { objectName: 'menu'; WMenuItem { text: 'Entry' } } }"));
    QPointer<QQuickItem> button = find(u"button"_s);
    button->forceActiveFocus(Qt::TabFocusReason);
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    if (property.isEmpty())
        delete button;
    else
        button->setProperty(property, false);
    press(Qt::Key_Escape);
    QTRY_VERIFY(!menu->property("visible").toBool());
    QVERIFY(!button || !button->hasActiveFocus());
}

void tst_Menus::whatTakesNoFocusReturnsNone_data()
{
    QTest::addColumn<QByteArray>("popup");
    QTest::newRow("WToolTip") << QByteArray("WToolTip { text: 'Tip'; ");
    QTest::newRow("WCoachmark") << QByteArray("WCoachmark { titleText: 'Title'; ");
    QTest::newRow("LKMenu") << QByteArray("LKMenu { model: ['Entry']; visible: false; function open() { visible = "
                                          "true; } function close() { visible = false; } ");
}

void tst_Menus::whatTakesNoFocusReturnsNone()
{
    QFETCH(const QByteArray, popup);
    QVERIFY(show("Item { WButton { objectName: 'button'; text: 'Opener' } TextInput { objectName: 'input' }" + popup
                 + "objectName: 'popup' } }"));
    find(u"button"_s)->forceActiveFocus(Qt::TabFocusReason);
    QSignalSpy changes(window(), &QQuickWindow::activeFocusItemChanged);
    auto *shown = find<QObject>(u"popup"_s);
    QVERIFY(QMetaObject::invokeMethod(shown, "open"));
    QVERIFY(QMetaObject::invokeMethod(shown, "close"));
    QTRY_VERIFY(!shown->property("visible").toBool());
    QCOMPARE(changes.count(), 0);
    // What has moved while it was shown stays there.
    QVERIFY(QMetaObject::invokeMethod(shown, "open"));
    find(u"input"_s)->forceActiveFocus(Qt::MouseFocusReason);
    QVERIFY(QMetaObject::invokeMethod(shown, "close"));
    QCOMPARE(window()->activeFocusItem(), find(u"input"_s));
}

LUMAKIT_TEST_MAIN(tst_Menus)
#include "tst_menus.moc"
