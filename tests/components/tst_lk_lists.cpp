#include <ComponentTest.h>

#include <QAccessible>
#include <QAccessibleActionInterface>

using namespace Qt::StringLiterals;

namespace {

QQuickItem *itemOf(const QObject *object, const char *property)
{
    return object->property(property).value<QQuickItem *>();
}

QAccessibleInterface *accessible(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

void pressAccessible(QObject *object)
{
    accessible(object)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

double number(const QObject *object, const char *property)
{
    return object->property(property).toDouble();
}

// The visible items, however deep, that have the property.
QList<QQuickItem *> itemsWith(const QQuickItem *parent, const char *property)
{
    QList<QQuickItem *> items;
    for (QQuickItem *child : parent->childItems()) {
        if (child->isVisible() && child->metaObject()->indexOfProperty(property) >= 0)
            items += child;
        items += itemsWith(child, property);
    }
    return items;
}

QList<QQuickItem *> itemsWithText(const QQuickItem *parent, const QString &text)
{
    QList<QQuickItem *> items = itemsWith(parent, "text");
    items.removeIf([&](const QQuickItem *item) { return item->property("text").toString() != text; });
    return items;
}

// While there is one, the library behaves as with a screen reader on.
class ScreenReader
{
public:
    ScreenReader() { QAccessible::setActive(true); }
    ~ScreenReader() { QAccessible::setActive(false); }
    Q_DISABLE_COPY_MOVE(ScreenReader)
};

} // namespace

class tst_LkLists : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void scrollBarPages_data();
    void scrollBarPages();
    void pagingEndsAtThePress();
    void scrollBarArrows_data();
    void scrollBarArrows();
    void heldArrowRepeats();
    void scrollBarWithoutArrows();
    void scrollBarHandleIsDragged();
    void scrollBarIsThereWhenNeeded_data();
    void scrollBarIsThereWhenNeeded();
    void scrollBarThatIsNotInteractive();
    void scrollBarColors();

    void scrollViewKeys_data();
    void scrollViewKeys();
    void scrollViewByWheel();
    void scrollViewBars_data();
    void scrollViewBars();
    void scrollViewKeepsRoomForItsBar();
    void scrollViewWithoutContent();

    void tabKeys_data();
    void tabKeys();
    void tabByMouse();
    void tabParts_data();
    void tabParts();
    void tabColors_data();
    void tabColors();
    void tabIsAccessible();

    void shortcutParts_data();
    void shortcutParts();
    void shortcutStaysInANarrowRow_data();
    void shortcutStaysInANarrowRow();
    void shortcutSignals();
    void disabledShortcut();
    void shortcutIsAccessible();

    void groupToggles_data();
    void groupToggles();
    void groupRows();
    void groupIsAsWideAsItsWidestRow();
    void groupOfNothing_data();
    void groupOfNothing();
    void groupSignals();
    void groupIsAccessible();

private:
    /// A flickable of 200 x 200 over 200 x 1000, whose bar is at its right edge.
    QQuickItem *showBar(const QByteArray &properties = {}, double contentHeight = 1000)
    {
        show("Item { Flickable { objectName: 'view'; width: 200; height: 200; contentHeight: "
             + QByteArray::number(contentHeight) + "; T.ScrollBar.vertical: LKScrollBar { objectName: 'bar'; "
             + properties + " } } }");
        moveMouseAway();
        return find(u"bar"_s);
    }

    double contentY() const { return number(find(u"view"_s), "contentY"); }

    void pressAt(QQuickItem *item, const QPointF &place) const
    {
        QTest::mousePress(window(), Qt::LeftButton, {}, item->mapToScene(place).toPoint());
    }

    void releaseAt(QQuickItem *item, const QPointF &place) const
    {
        QTest::mouseRelease(window(), Qt::LeftButton, {}, item->mapToScene(place).toPoint());
    }
};

void tst_LkLists::scrollBarPages_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("place");
    QTest::addColumn<double>("contentY");
    QTest::addColumn<bool>("isUp");
    QTest::newRow("below the handle") << 0.0 << 190.0 << 200.0 << false;
    QTest::newRow("above the handle") << 800.0 << 10.0 << 600.0 << true;
    QTest::newRow("less than a page from the end") << 700.0 << 195.0 << 800.0 << false;
    QTest::newRow("less than a page from the start") << 100.0 << 5.0 << 0.0 << true;
}

void tst_LkLists::scrollBarPages()
{
    QFETCH(const double, start);
    QFETCH(const double, place);
    QFETCH(const double, contentY);
    QFETCH(const bool, isUp);
    auto *bar = showBar();
    QVERIFY(bar);
    find(u"view"_s)->setProperty("contentY", start);
    QCOMPARE(number(bar, "originalLocationPercent"), -1.0);
    pressAt(bar, {8, place});
    QCOMPARE(this->contentY(), contentY);
    QCOMPARE(number(bar, "originalLocationPercent"), place / 200);
    QCOMPARE(bar->property("isUp").toBool(), isUp);
    releaseAt(bar, {8, place});
    QCOMPARE(number(bar, "originalLocationPercent"), -1.0);
    QCOMPARE(this->contentY(), contentY);
}

void tst_LkLists::pagingEndsAtThePress()
{
    auto *bar = showBar("timerInterval: 5");
    QVERIFY(bar);
    pressAt(bar, {8, 110}); // in the handle's way from 80 to 120
    QTRY_COMPARE(contentY(), 400.0);
    QSignalSpy moved(bar, SIGNAL(positionChanged()));
    QVERIFY(!moved.wait(100));
    releaseAt(bar, {8, 110});
    QCOMPARE(contentY(), 400.0);
}

void tst_LkLists::scrollBarArrows_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("place");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<double>("contentY");
    QTest::addColumn<bool>("isUp");
    QTest::newRow("down") << 0.0 << 192.0 << QByteArray() << 25.0 << false; // an eighth of the view
    QTest::newRow("up") << 100.0 << 8.0 << QByteArray() << 75.0 << true;
    QTest::newRow("down at the end") << 800.0 << 192.0 << QByteArray() << 800.0 << false;
    QTest::newRow("up at the start") << 0.0 << 8.0 << QByteArray() << 0.0 << true;
    QTest::newRow("down by a step size") << 0.0 << 192.0 << QByteArray("stepSize: 0.3") << 300.0 << false;
}

void tst_LkLists::scrollBarArrows()
{
    QFETCH(const double, start);
    QFETCH(const double, place);
    QFETCH(const QByteArray, properties);
    QFETCH(const double, contentY);
    QFETCH(const bool, isUp);
    auto *bar = showBar("arrowVisible: true; " + properties);
    QVERIFY(bar);
    find(u"view"_s)->setProperty("contentY", start);
    click(bar, {8, place});
    QCOMPARE(this->contentY(), contentY);
    QCOMPARE(bar->property("isUp").toBool(), isUp);
    QCOMPARE(number(bar, "originalLocationPercent"), -1.0);
}

void tst_LkLists::heldArrowRepeats()
{
    auto *bar = showBar("arrowVisible: true; timerInterval: 5");
    QVERIFY(bar);
    pressAt(bar, {8, 192});
    QCOMPARE(contentY(), 25.0);
    QTRY_COMPARE(contentY(), 800.0);
    releaseAt(bar, {8, 192});
    find(u"view"_s)->setProperty("contentY", 0);
    QSignalSpy moved(bar, SIGNAL(positionChanged()));
    QVERIFY(!moved.wait(100));
    // The next press waits again before it repeats.
    click(bar, {8, 192});
    QCOMPARE(contentY(), 25.0);
}

void tst_LkLists::scrollBarWithoutArrows()
{
    auto *bar = showBar();
    QVERIFY(bar);
    QCOMPARE(itemsWith(bar, "svgName").size(), 0);
    QCOMPARE(number(bar, "topPadding"), 0.0);
    bar->setProperty("arrowVisible", true);
    QCOMPARE(itemsWith(bar, "svgName").size(), 2);
    QCOMPARE(number(bar, "topPadding"), 16.0);
    QCOMPARE(number(bar, "bottomPadding"), 16.0);
    QCOMPARE(itemOf(bar, "contentItem")->y(), 16.0);
}

void tst_LkLists::scrollBarHandleIsDragged()
{
    auto *bar = showBar();
    QVERIFY(bar);
    QCOMPARE(itemOf(bar, "contentItem")->height(), 40.0); // a fifth
    pressAt(bar, {8, 20});
    QCOMPARE(number(bar, "originalLocationPercent"), -1.0);
    QTest::mouseMove(window(), bar->mapToScene({8, 60}).toPoint());
    QTest::mouseMove(window(), bar->mapToScene({8, 100}).toPoint());
    releaseAt(bar, {8, 100});
    QCOMPARE(contentY(), 400.0);
}

void tst_LkLists::scrollBarIsThereWhenNeeded_data()
{
    QTest::addColumn<QByteArray>("policy");
    QTest::addColumn<double>("contentHeight");
    QTest::addColumn<bool>("visible");
    QTest::newRow("content that fits") << QByteArray("AsNeeded") << 100.0 << false;
    QTest::newRow("content that is larger") << QByteArray("AsNeeded") << 300.0 << true;
    QTest::newRow("always") << QByteArray("AlwaysOn") << 100.0 << true;
    QTest::newRow("never") << QByteArray("AlwaysOff") << 300.0 << false;
}

void tst_LkLists::scrollBarIsThereWhenNeeded()
{
    QFETCH(const QByteArray, policy);
    QFETCH(const double, contentHeight);
    QFETCH(const bool, visible);
    auto *bar = showBar("policy: T.ScrollBar." + policy, contentHeight);
    QVERIFY(bar);
    QTRY_COMPARE(bar->isVisible(), visible);
}

void tst_LkLists::scrollBarThatIsNotInteractive()
{
    auto *bar = showBar("arrowVisible: true; interactive: false");
    QVERIFY(bar);
    click(bar, {8, 192});
    click(bar, {8, 150});
    QCOMPARE(contentY(), 0.0);
}

void tst_LkLists::scrollBarColors()
{
    auto *bar = showBar("arrowVisible: true");
    QVERIFY(bar);
    const WColorSet handle = application()->getColorSet(u"scrollbar-thumb-background"_s);
    const auto *rectangle = itemOf(bar, "contentItem");
    QTRY_COMPARE(rectangle->property("color").value<QColor>(), handle.normal);
    moveMouseTo(bar);
    QTRY_COMPARE(rectangle->property("color").value<QColor>(), handle.hovered);
    bar->setEnabled(false);
    QCOMPARE(rectangle->property("color").value<QColor>(), handle.disabled);
    bar->setEnabled(true);
    moveMouseAway();
    const WColorSet arrow = application()->getColorSet(u"scrollbar-arrow-button-text"_s);
    auto *icon = itemsWith(bar, "svgColor").constFirst();
    QTRY_COMPARE(icon->property("svgColor").value<QColor>(), arrow.normal);
    pressAt(icon, {6, 6});
    QCOMPARE(icon->property("svgColor").value<QColor>(), arrow.pressed);
    releaseAt(icon, {6, 6});
}

namespace {

constexpr auto View = "Item { LKScrollView { objectName: 'view'; width: 200; height: 200; "
                      "Rectangle { implicitWidth: 600; implicitHeight: 1000 } } }";

QPointF contentPosition(const QObject *view)
{
    const auto *flickable = itemOf(view, "contentItem");
    return {number(flickable, "contentX"), number(flickable, "contentY")};
}

} // namespace

// The view shows 184 x 184 beside its bars.
void tst_LkLists::scrollViewKeys_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QPointF>("position");
    QTest::newRow("down") << QList<int>{Qt::Key_Down} << QPointF(0, 24);
    QTest::newRow("down and up") << QList<int>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Up} << QPointF(0, 24);
    QTest::newRow("up at the start") << QList<int>{Qt::Key_Up} << QPointF(0, 0);
    QTest::newRow("page down") << QList<int>{Qt::Key_PageDown} << QPointF(0, 160);
    QTest::newRow("page up") << QList<int>{Qt::Key_End, Qt::Key_PageUp} << QPointF(0, 656);
    QTest::newRow("end") << QList<int>{Qt::Key_End} << QPointF(0, 816);
    QTest::newRow("home") << QList<int>{Qt::Key_End, Qt::Key_Home} << QPointF(0, 0);
    QTest::newRow("right") << QList<int>{Qt::Key_Right} << QPointF(24, 0);
    QTest::newRow("left") << QList<int>{Qt::Key_Right, Qt::Key_Right, Qt::Key_Left} << QPointF(24, 0);
}

void tst_LkLists::scrollViewKeys()
{
    QFETCH(const QList<int>, keys);
    QFETCH(const QPointF, position);
    QVERIFY(show(View));
    auto *view = find(u"view"_s);
    QCOMPARE(number(view, "availableWidth"), 184.0);
    QCOMPARE(number(view, "availableHeight"), 184.0);
    view->forceActiveFocus(Qt::TabFocusReason);
    for (const int key : keys)
        press(Qt::Key(key));
    QTRY_COMPARE(contentPosition(view), position);
}

void tst_LkLists::scrollViewByWheel()
{
    QVERIFY(show(View));
    auto *view = find(u"view"_s);
    QTest::wheelEvent(window(), view->mapToScene({100, 100}), {0, -120});
    QTRY_COMPARE_GT(contentPosition(view).y(), 0.0);
}

void tst_LkLists::scrollViewBars_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("arrowVisible");
    QTest::addColumn<double>("x");
    QTest::newRow("left to right") << false << false << 184.0;
    QTest::newRow("right to left") << true << false << 0.0;
    QTest::newRow("with arrows") << false << true << 184.0;
}

void tst_LkLists::scrollViewBars()
{
    QFETCH(const bool, mirrored);
    QFETCH(const bool, arrowVisible);
    QFETCH(const double, x);
    QVERIFY(
        show("Item { LayoutMirroring.enabled: " + QByteArray(mirrored ? "true" : "false")
             + "; LayoutMirroring.childrenInherit: true; LKScrollView { objectName: 'view'; width: 200; height: 200; "
               "arrowVisible: "
             + QByteArray(arrowVisible ? "true" : "false")
             + "; Rectangle { implicitWidth: 600; implicitHeight: 1000 } } }"));
    const auto *view = find(u"view"_s);
    const auto *vertical = itemOf(view, "verticalBar");
    const auto *horizontal = itemOf(view, "horizontalBar");
    QCOMPARE(QRectF(vertical->position(), vertical->size()), QRectF(x, 0, 16, 184));
    QCOMPARE(QRectF(horizontal->position(), horizontal->size()), QRectF(mirrored ? 16 : 0, 184, 184, 16));
    QCOMPARE(itemsWith(vertical, "svgName").size(), arrowVisible ? 2 : 0);
    QCOMPARE(itemsWith(horizontal, "svgName").size(), arrowVisible ? 2 : 0);
}

void tst_LkLists::scrollViewKeepsRoomForItsBar()
{
    QVERIFY(show(
        "Item { LKScrollView { id: view; objectName: 'view'; width: 200; height: 100; contentWidth: availableWidth; "
        "WText { objectName: 'text'; width: view.availableWidth; text: 'Short'; wrapMode: Text.Wrap } } }"));
    const auto *view = find(u"view"_s);
    auto *text = find(u"text"_s);
    QCOMPARE(text->width(), 184.0);
    QVERIFY(!itemOf(view, "verticalBar")->isVisible());
    QVERIFY(!view->property("activeFocusOnTab").toBool());
    text->setProperty("text", u"A text that is much too long. "_s.repeated(20));
    QTRY_VERIFY(itemOf(view, "verticalBar")->isVisible());
    QCOMPARE(text->width(), 184.0);
    QVERIFY(!itemOf(view, "horizontalBar")->isVisible());
    QVERIFY(view->property("activeFocusOnTab").toBool());
}

void tst_LkLists::scrollViewWithoutContent()
{
    QVERIFY(show("Item { LKScrollView { objectName: 'view' } }"));
    const auto *view = find(u"view"_s);
    QCOMPARE(QSizeF(view->implicitWidth(), view->implicitHeight()), QSizeF(16, 0));
}

namespace {

QByteArray tabBar(bool mirrored)
{
    return "Item { LayoutMirroring.enabled: " + QByteArray(mirrored ? "true" : "false")
        + "; LayoutMirroring.childrenInherit: true; LKTabBar { objectName: 'bar'; LKTabItem { objectName: 'a'; text: "
          "'A' } "
          "LKTabItem { text: 'B'; enabled: false } LKTabItem { objectName: 'c'; text: 'C' } LKTabItem { text: 'D' } } "
          "}";
}

} // namespace

void tst_LkLists::tabKeys_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("index");
    QTest::newRow("right passes what is disabled") << false << 0 << int(Qt::Key_Right) << 2;
    QTest::newRow("left passes what is disabled") << false << 2 << int(Qt::Key_Left) << 0;
    QTest::newRow("right at the end") << false << 3 << int(Qt::Key_Right) << 3;
    QTest::newRow("end") << false << 0 << int(Qt::Key_End) << 3;
    QTest::newRow("home") << false << 3 << int(Qt::Key_Home) << 0;
    QTest::newRow("left, mirrored") << true << 0 << int(Qt::Key_Left) << 2;
    QTest::newRow("right, mirrored") << true << 2 << int(Qt::Key_Right) << 0;
}

void tst_LkLists::tabKeys()
{
    QFETCH(const bool, mirrored);
    QFETCH(const int, start);
    QFETCH(const int, key);
    QFETCH(const int, index);
    QVERIFY(show(tabBar(mirrored)));
    auto *bar = find(u"bar"_s);
    bar->setProperty("currentIndex", start);
    press(Qt::Key_Tab);
    QTRY_VERIFY(bar->property("currentItem").value<QQuickItem *>()->hasActiveFocus());
    press(Qt::Key(key));
    QCOMPARE(bar->property("currentIndex").toInt(), index);
    QVERIFY(bar->property("currentItem").value<QQuickItem *>()->hasActiveFocus());
}

void tst_LkLists::tabByMouse()
{
    QVERIFY(show(tabBar(false)));
    auto *bar = find(u"bar"_s);
    click(find(u"c"_s));
    QCOMPARE(bar->property("currentIndex").toInt(), 2);
    QVERIFY(find(u"c"_s)->property("checked").toBool());
    QVERIFY(!find(u"a"_s)->property("checked").toBool());
}

void tst_LkLists::tabParts_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QStringList>("icons");
    QTest::addColumn<QString>("badge");
    QTest::newRow("a text") << QByteArray("text: 'Chat'") << QStringList() << QString();
    QTest::newRow("icons") << QByteArray("text: 'Chat'; leftIconName: 'chat'; rightIconName: 'pin'")
                           << QStringList{u"chat"_s, u"pin"_s} << QString();
    QTest::newRow("an icon only") << QByteArray("middleIconName: 'settings'") << QStringList{u"settings"_s}
                                  << QString();
    QTest::newRow("a badge") << QByteArray("text: 'Chat'; badgeText: '120'") << QStringList() << u"99+"_s;
}

void tst_LkLists::tabParts()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QStringList, icons);
    QFETCH(const QString, badge);
    QVERIFY(show("Item { LKTabItem { objectName: 'tab'; " + properties + " } }"));
    auto *tab = find(u"tab"_s);
    QStringList names;
    for (const QQuickItem *icon : itemsWith(tab, "svgName"))
        names << icon->property("svgName").toString();
    QCOMPARE(names, icons);
    const QList<QQuickItem *> badges = itemsWith(tab, "labelText");
    QCOMPARE(badges.size(), badge.isEmpty() ? 0 : 1);
    if (!badge.isEmpty())
        QCOMPARE(badges[0]->property("labelText").toString(), badge);
    QCOMPARE(tab->height(), 32.0);
    QCOMPARE_GE(tab->width(), 32.0);
    const QList<QQuickItem *> texts = itemsWith(tab, "truncated");
    for (const QQuickItem *text : texts)
        QVERIFY(!text->property("truncated").toBool());
    if (tab->property("text").toString().isEmpty())
        return;
    tab->setWidth(tab->implicitWidth() - 12);
    QTRY_VERIFY(texts.constFirst()->property("truncated").toBool());
    for (const QQuickItem *part : itemsWith(tab, "text"))
        QCOMPARE_LE(part->mapToItem(tab, QPointF(part->width(), 0)).x(), tab->width());
}

void tst_LkLists::tabColors_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("state");
    for (const char *state : {"normal", "hovered", "pressed", "disabled"}) {
        QTest::addRow("%s", state) << false << QString::fromLatin1(state);
        QTest::addRow("%s, current", state) << true << QString::fromLatin1(state);
    }
}

void tst_LkLists::tabColors()
{
    QFETCH(const bool, checked);
    QFETCH(const QString, state);
    QVERIFY(show("Item { LKTabItem { objectName: 'tab'; text: 'Chat'; leftIconName: 'chat' } }"));
    auto *tab = find(u"tab"_s);
    tab->setProperty("checked", checked);
    moveMouseAway();
    if (state == "hovered"_L1)
        moveMouseTo(tab);
    else if (state == "pressed"_L1)
        pressAt(tab, {6, 6});
    else if (state == "disabled"_L1)
        tab->setEnabled(false);
    const QString family = checked ? u"tab-active-"_s : u"tab-inactive-"_s;
    const QColor text = application()->getColorSet(family + u"text"_s).getColor(state);
    QTRY_COMPARE(itemOf(tab, "background")->property("color").value<QColor>(),
                 application()->getColorSet(family + u"background"_s).getColor(state));
    QCOMPARE(itemsWith(tab, "svgColor").constFirst()->property("svgColor").value<QColor>(), text);
    QCOMPARE(itemsWith(tab, "truncated").constFirst()->property("color").value<QColor>(), text);
    if (state == "pressed"_L1)
        releaseAt(tab, {6, 6});
}

void tst_LkLists::tabIsAccessible()
{
    const ScreenReader screenReader;
    QVERIFY(show("Item { LKTabBar { objectName: 'bar'; LKTabItem { objectName: 'a'; text: 'Chat'; badgeText: '3' } "
                 "LKTabItem { objectName: 'b'; middleIconName: 'settings'; tooltip: 'Settings' } } }"));
    QCOMPARE(accessible(find(u"bar"_s))->role(), QAccessible::PageTabList);
    auto *first = accessible(find(u"a"_s));
    auto *second = accessible(find(u"b"_s));
    QCOMPARE(first->role(), QAccessible::PageTab);
    QCOMPARE(first->text(QAccessible::Name), u"Chat"_s);
    QCOMPARE(first->text(QAccessible::Description), u"3"_s);
    QCOMPARE(second->text(QAccessible::Name), u"Settings"_s);
    QVERIFY(first->state().selected);
    QVERIFY(!second->state().selected);
    pressAccessible(find(u"b"_s));
    QVERIFY(second->state().selected);
    QVERIFY(!first->state().selected);
}

void tst_LkLists::shortcutParts_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("buttons");
    QTest::newRow("a title") << QByteArray() << QStringList() << 0;
    QTest::newRow("keys") << QByteArray("keySequence: 'Ctrl+M'") << QStringList{u"Ctrl+M"_s} << 0;
    QTest::newRow("a global shortcut") << QByteArray(
        "keySequence: 'Ctrl+M'; globalLabelIsVisible: true; globalLabelText: 'Global'")
                                       << QStringList{u"Ctrl+M"_s, u"Global"_s} << 0;
    QTest::newRow("no keys") << QByteArray("addButtonIsVisible: true; addButtonText: 'Add'") << QStringList{u"Add"_s}
                             << 1;
    QTest::newRow("keys stand in for the button to add them")
        << QByteArray("keySequence: 'Ctrl+M'; addButtonIsVisible: true; addButtonText: 'Add'")
        << QStringList{u"Ctrl+M"_s} << 0;
    QTest::newRow("more") << QByteArray("moreButtonIsVisible: true") << QStringList() << 1;
}

void tst_LkLists::shortcutParts()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QStringList, texts);
    QFETCH(const int, buttons);
    QVERIFY(show("Item { LKKeyboardShortcutsItemDelegate { objectName: 'row'; title: 'Mute'; " + properties + " } }"));
    const auto *row = find(u"row"_s);
    for (const QString &text : {u"Ctrl+M"_s, u"Global"_s, u"Add"_s})
        QCOMPARE(!itemsWithText(row, text).isEmpty(), texts.contains(text));
    QList<QQuickItem *> clickable = itemsWith(row, "focusPolicy");
    clickable.removeIf([](const QQuickItem *item) { return item->property("focusPolicy").toInt() == Qt::NoFocus; });
    QCOMPARE(clickable.size(), buttons);
    for (const QQuickItem *text : itemsWith(row, "truncated"))
        QVERIFY2(!text->property("truncated").toBool(), qPrintable(text->property("text").toString()));
}

void tst_LkLists::shortcutStaysInANarrowRow_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("part");
    const QByteArray keys = "keySequence: 'Ctrl+Alt+Shift+Backspace'";
    const QByteArray add = "addButtonIsVisible: true; addButtonText: 'Add some keys for this'";
    const QByteArray global = "; globalLabelIsVisible: true; globalLabelText: 'Everywhere'";
    const QByteArray more = "; moreButtonIsVisible: true";
    QTest::newRow("keys") << keys << u"Ctrl+Alt+Shift+Backspace"_s;
    QTest::newRow("keys and more") << keys + more << u"Ctrl+Alt+Shift+Backspace"_s;
    QTest::newRow("keys, a label and more") << keys + global + more << u"Ctrl+Alt+Shift+Backspace"_s;
    QTest::newRow("add") << add << u"Add some keys for this"_s;
    QTest::newRow("add and more") << add + more << u"Add some keys for this"_s;
}

void tst_LkLists::shortcutStaysInANarrowRow()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, part);
    QVERIFY(show("Item { LKKeyboardShortcutsItemDelegate { objectName: 'row'; title: 'Leave the meeting'; " + properties
                 + " } }"));
    auto *row = find(u"row"_s);
    const QQuickItem *text = itemsWithText(row, part).constFirst();
    const double natural = text->width();
    // Everything keeps its width while the title can still give way.
    row->setWidth(row->implicitWidth() - 40);
    QTRY_VERIFY(itemsWithText(row, u"Leave the meeting"_s).constFirst()->property("truncated").toBool());
    QCOMPARE(text->width(), natural);
    row->setWidth(130);
    QTRY_COMPARE_LT(text->width(), natural);
    for (const QQuickItem *item : itemsWith(row, "text") + itemsWith(row, "buttonIcon")) {
        const QRectF place = item->mapRectToItem(row, item->boundingRect());
        QVERIFY2(place.left() >= 0 && place.right() <= row->width(), qPrintable(item->property("text").toString()));
    }
}

void tst_LkLists::shortcutSignals()
{
    QVERIFY(
        show("Item { LKKeyboardShortcutsItemDelegate { objectName: 'row'; width: 300; title: 'Mute'; "
             "addButtonIsVisible: true; addButtonText: 'Add'; moreButtonIsVisible: true; moreButtonTooltipText: 'More' "
             "} }"));
    auto *row = find(u"row"_s);
    QSignalSpy clicked(row, SIGNAL(clicked()));
    QSignalSpy add(row, SIGNAL(addButtonClicked()));
    QSignalSpy more(row, SIGNAL(moreButtonClicked(QQuickItem *)));
    auto *addButton = itemsWithText(row, u"Add"_s).constFirst();
    auto *moreButton = itemsWith(row, "buttonIcon").constFirst();
    click(addButton);
    click(moreButton);
    QCOMPARE(add.count(), 1);
    QCOMPARE(more.count(), 1);
    QCOMPARE(more[0][0].value<QQuickItem *>(), moreButton);
    QCOMPARE(clicked.count(), 0);
    click(row, {20, 20});
    QCOMPARE(clicked.count(), 1);
    QVERIFY(row->hasActiveFocus());
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Enter, Qt::Key_Return})
        press(key);
    QCOMPARE(clicked.count(), 4);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    QCOMPARE(add.count(), 2);
    row->setProperty("addButtonIsEnabled", false);
    row->setProperty("moreButtonIsEnabled", false);
    QVERIFY(!addButton->isEnabled());
    QVERIFY(!moreButton->isEnabled());
    pressAt(row, {20, 20});
    QVERIFY(row->property("pressed").toBool());
    releaseAt(row, {20, 20});
    QVERIFY(!row->property("pressed").toBool());
}

void tst_LkLists::disabledShortcut()
{
    QVERIFY(
        show("Item { LKKeyboardShortcutsItemDelegate { objectName: 'row'; width: 300; title: 'Mute'; enabled: false; "
             "moreButtonIsVisible: true } }"));
    auto *row = find(u"row"_s);
    QSignalSpy clicked(row, SIGNAL(clicked()));
    QSignalSpy more(row, SIGNAL(moreButtonClicked(QQuickItem *)));
    click(row, {20, 20});
    click(itemsWith(row, "buttonIcon").constFirst());
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(more.count(), 0);
    QCOMPARE(row->property("color").value<QColor>(), application()->getColorSet(u"listitem-background"_s).disabled);
}

void tst_LkLists::shortcutIsAccessible()
{
    QVERIFY(show("Item { LKKeyboardShortcutsItemDelegate { objectName: 'row'; title: 'Mute'; keySequence: 'Ctrl+M'; "
                 "globalLabelIsVisible: true; globalLabelText: 'Global' } }"));
    auto *interface = accessible(find(u"row"_s));
    QCOMPARE(interface->role(), QAccessible::ListItem);
    QCOMPARE(interface->text(QAccessible::Name), u"Mute"_s);
    QCOMPARE(interface->text(QAccessible::Description), u"Ctrl+M, Global"_s);
    QVERIFY(interface->state().focusable);
    QSignalSpy clicked(find(u"row"_s), SIGNAL(clicked()));
    pressAccessible(find(u"row"_s));
    QCOMPARE(clicked.count(), 1);
}

namespace {

QByteArray group(bool mirrored = false)
{
    return "Item { LayoutMirroring.enabled: " + QByteArray(mirrored ? "true" : "false")
        + "; LayoutMirroring.childrenInherit: true; LKKeyboardShortcutsGroupDelegate { objectName: 'group'; width: "
          "360; "
          "title: 'Call'; items: [{ title: 'Mute', keySequence: 'Ctrl+M', moreButtonIsVisible: true }, "
          "{ title: 'Leave', addButtonIsVisible: true, addButtonText: 'Add' }] } }";
}

} // namespace

void tst_LkLists::groupToggles_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("collapsed");
    QTest::addColumn<int>("key"); // 0: the mouse
    QTest::addColumn<bool>("toggles");
    QTest::newRow("click") << false << false << 0 << true;
    QTest::newRow("click again") << false << true << 0 << true;
    QTest::newRow("space") << false << false << int(Qt::Key_Space) << true;
    QTest::newRow("enter") << false << true << int(Qt::Key_Enter) << true;
    QTest::newRow("return") << false << true << int(Qt::Key_Return) << true;
    QTest::newRow("left collapses") << false << false << int(Qt::Key_Left) << true;
    QTest::newRow("left, collapsed") << false << true << int(Qt::Key_Left) << false;
    QTest::newRow("right expands") << false << true << int(Qt::Key_Right) << true;
    QTest::newRow("right, expanded") << false << false << int(Qt::Key_Right) << false;
    QTest::newRow("right collapses, mirrored") << true << false << int(Qt::Key_Right) << true;
    QTest::newRow("left expands, mirrored") << true << true << int(Qt::Key_Left) << true;
}

void tst_LkLists::groupToggles()
{
    QFETCH(const bool, mirrored);
    QFETCH(const bool, collapsed);
    QFETCH(const int, key);
    QFETCH(const bool, toggles);
    QVERIFY(show(group(mirrored)));
    auto *group = find(u"group"_s);
    group->setProperty("collapsed", collapsed);
    QSignalSpy toggled(group, SIGNAL(toggled()));
    auto *header = itemOf(group, "header");
    if (key == 0) {
        click(header);
    } else {
        header->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key(key));
    }
    QCOMPARE(toggled.count(), toggles ? 1 : 0);
    QCOMPARE(group->property("collapsed").toBool(), collapsed != toggles);
}

void tst_LkLists::groupRows()
{
    QVERIFY(show(group()));
    auto *group = find(u"group"_s);
    QList<QQuickItem *> rows = itemsWith(group, "keySequence");
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows[0]->property("title").toString(), u"Mute"_s);
    QCOMPARE(rows[0]->property("keySequence").toString(), u"Ctrl+M"_s);
    QVERIFY(rows[0]->property("moreButtonIsVisible").toBool());
    QVERIFY(rows[1]->property("addButtonIsVisible").toBool());
    QCOMPARE(rows[1]->width(), group->width());
    const double height = group->implicitHeight();
    group->setProperty("collapsed", true);
    QCOMPARE(itemsWith(group, "keySequence").size(), 0);
    QTRY_COMPARE_LT(group->implicitHeight(), height - 80);
    group->setProperty("collapsed", false);
    QTRY_COMPARE(group->implicitHeight(), height);
}

void tst_LkLists::groupIsAsWideAsItsWidestRow()
{
    QVERIFY(
        show("Item { LKKeyboardShortcutsGroupDelegate { objectName: 'group'; title: 'Call'; "
             "items: [{ title: 'Mute', keySequence: 'Ctrl+M' }, { title: 'A long name of what the keys do' }] } }"));
    auto *group = find(u"group"_s);
    const QList<QQuickItem *> rows = itemsWith(group, "keySequence");
    QCOMPARE(rows.size(), 2);
    QVERIFY(rows[1]->implicitWidth() > rows[0]->implicitWidth());
    QCOMPARE(group->width(), rows[1]->implicitWidth());
    QCOMPARE(rows[0]->width(), group->width());
    group->setProperty("items", QVariantList());
    QCOMPARE(group->width(), std::ceil(itemOf(group, "header")->implicitWidth()));
}

void tst_LkLists::groupOfNothing_data()
{
    QTest::addColumn<QByteArray>("items");
    QTest::addColumn<int>("rows");
    QTest::newRow("null") << QByteArray("null") << 0;
    QTest::newRow("empty") << QByteArray("[]") << 0;
    QTest::newRow("rows of nothing") << QByteArray("[null, undefined, {}]") << 3;
}

void tst_LkLists::groupOfNothing()
{
    QFETCH(const QByteArray, items);
    QFETCH(const int, rows);
    QVERIFY(
        show("Item { LKKeyboardShortcutsGroupDelegate { objectName: 'group'; title: 'Call'; items: " + items + " } }"));
    QCOMPARE(itemsWith(find(u"group"_s), "keySequence").size(), rows);
}

void tst_LkLists::groupSignals()
{
    QVERIFY(show(group()));
    auto *group = find(u"group"_s);
    QSignalSpy clicked(group, SIGNAL(itemClicked(int)));
    QSignalSpy add(group, SIGNAL(addButtonClicked(int)));
    QSignalSpy more(group, SIGNAL(moreButtonClicked(int, QQuickItem *)));
    const QList<QQuickItem *> rows = itemsWith(group, "keySequence");
    click(rows[1], {20, 20});
    click(itemsWithText(rows[1], u"Add"_s).constFirst());
    click(itemsWith(rows[0], "buttonIcon").constFirst());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked[0][0].toInt(), 1);
    QCOMPARE(add.count(), 1);
    QCOMPARE(add[0][0].toInt(), 1);
    QCOMPARE(more.count(), 1);
    QCOMPARE(more[0][0].toInt(), 0);
}

void tst_LkLists::groupIsAccessible()
{
    QVERIFY(show(group()));
    auto *group = find(u"group"_s);
    QCOMPARE(accessible(group)->role(), QAccessible::Grouping);
    QCOMPARE(accessible(group)->text(QAccessible::Name), u"Call"_s);
    auto *header = itemOf(group, "header");
    QCOMPARE(accessible(header)->role(), QAccessible::Button);
    QCOMPARE(accessible(header)->text(QAccessible::Name), u"Call"_s);
    QVERIFY(accessible(header)->state().checked);
    QSignalSpy toggled(group, SIGNAL(toggled()));
    pressAccessible(header);
    QCOMPARE(toggled.count(), 1);
    QVERIFY(!accessible(header)->state().checked);
}

LUMAKIT_TEST_MAIN(tst_LkLists)
#include "tst_lk_lists.moc"
