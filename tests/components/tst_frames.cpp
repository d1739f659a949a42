#include <ComponentTest.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QStyleHints>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QColor color(const QObject *object, const char *property = "color")
{
    return object->property(property).value<QColor>();
}

QColor borderColor(const QObject *rectangle)
{
    return color(rectangle->property("border").value<QObject *>());
}

int borderWidth(const QObject *rectangle)
{
    return rectangle->property("border").value<QObject *>()->property("width").toInt();
}

QQuickItem *background(const QObject *control)
{
    return control->property("background").value<QQuickItem *>();
}

} // namespace

class tst_Frames : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void rectangleStates_data();
    void rectangleStates();
    void rectangleFollowsTheTheme();
    void frameBorder();
    void separator();
    void paneSize();
    void paneColors();
    void paneTakesClicks();
    void listItemStates_data();
    void listItemStates();
    void listItemByItself();
    void splitViewKeys_data();
    void splitViewKeys();
    void splitViewDrag();
    void splitViewColors();
    void splitViewFocus();
    void splitViewAccessibility();
    void cursorInAText();
    void cursorBlinks();
    void cursorWithoutAnimations();
    void shortcut();
    void shortcutsOfTheSameKeys();
    void disabledShortcut();
    void moveAreaByTheDesktop();
    void resizeFrameByTheDesktop();

private:
    QQuickItem *showSplitView(const QByteArray &properties = {}, bool isVertical = false);
    QList<QQuickItem *> handles() const;
    QQuickItem *grip(QQuickItem *handle) const;
    bool makeFrameless(const QRect &geometry);
};

void tst_Frames::rectangleStates_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QColor WColorSet::*>("state");
    QTest::newRow("normal") << QByteArray("null") << &WColorSet::normal;
    QTest::newRow("hovered") << QByteArray("({ hovered: true })") << &WColorSet::hovered;
    QTest::newRow("pressed") << QByteArray("({ pressed: true, hovered: true })") << &WColorSet::pressed;
    QTest::newRow("disabled") << QByteArray("({ enabled: false, pressed: true })") << &WColorSet::disabled;
    QTest::newRow("checked") << QByteArray("({ checked: true })") << &WColorSet::checked;
}

void tst_Frames::rectangleStates()
{
    QFETCH(const QByteArray, target);
    QFETCH(QColor WColorSet::*const, state);
    QVERIFY(show("WFrame { controlsTarget: " + target
                 + "; backgroundColorSetName: 'button-primary-background'; "
                   "borderColorSetName: 'button-secondary-border' }"));
    QCOMPARE(color(root()), application()->getColorSet(u"button-primary-background"_s).*state);
    QCOMPARE(borderColor(root()), application()->getColorSet(u"button-secondary-border"_s).*state);
}

void tst_Frames::rectangleFollowsTheTheme()
{
    QVERIFY(show("WRectangle { backgroundColorSetName: 'panel-primary-background' }"));
    const QColor light = application()->getColorSet(u"panel-primary-background"_s).normal;
    QCOMPARE(color(root()), light);
    application()->setThemeMode(u"dark"_s);
    QVERIFY(color(root()) != light);
    QCOMPARE(color(root()), application()->getColorSet(u"panel-primary-background"_s).normal);
    root()->setProperty("backgroundColorSetName", QString());
    QCOMPARE(color(root()).alpha(), 0);
}

void tst_Frames::frameBorder()
{
    QVERIFY(show("WFrame { borderColorSetName: 'separator-primary' }"));
    QCOMPARE(borderWidth(root()), 1);
    QCOMPARE(borderColor(root()), application()->getColorSet(u"separator-primary"_s).normal);
    root()->setProperty("borderWidth", 3);
    QCOMPARE(borderWidth(root()), 3);
    root()->setProperty("borderColorSetName", QString());
    QCOMPARE(borderColor(root()).alpha(), 0);
}

void tst_Frames::separator()
{
    QVERIFY(show("WSeparator {}"));
    QCOMPARE(root()->implicitWidth(), 1);
    QCOMPARE(root()->implicitHeight(), 1);
    QCOMPARE(color(root()), application()->getColorSet(u"separator-primary"_s).normal);
    QCOMPARE(QAccessible::queryAccessibleInterface(root())->role(), QAccessible::Separator);
}

void tst_Frames::paneSize()
{
    QVERIFY(show("WPane { Item { objectName: 'content'; implicitWidth: 100; implicitHeight: 40 } }"));
    QCOMPARE(root()->implicitWidth(), 124);
    QCOMPARE(root()->implicitHeight(), 64);
    find(u"content"_s)->setImplicitWidth(150);
    QCOMPARE(root()->implicitWidth(), 174);
}

void tst_Frames::paneColors()
{
    QVERIFY(show("WPane { radius: 8 }"));
    const QQuickItem *rectangle = background(root());
    QCOMPARE(rectangle->property("radius").toInt(), 8);
    QCOMPARE(color(rectangle), application()->getColorSet(u"panel-primary-background"_s).normal);
    QCOMPARE(borderWidth(rectangle), 0);
    root()->setProperty("borderColorSetName", u"modal-primary-border"_s);
    QCOMPARE(borderWidth(rectangle), 1);
    QCOMPARE(borderColor(rectangle), application()->getColorSet(u"modal-primary-border"_s).normal);
    root()->setProperty("borderWidth", 2);
    QCOMPARE(borderWidth(rectangle), 2);
}

void tst_Frames::paneTakesClicks()
{
    QVERIFY(show("Item { MouseArea { objectName: 'below'; anchors.fill: parent } WPane { objectName: 'pane'; "
                 "width: 100; height: 100 } width: 200; height: 200 }"));
    QSignalSpy clicked(find(u"below"_s), SIGNAL(clicked(QQuickMouseEvent *)));
    click(find(u"pane"_s));
    QCOMPARE(clicked.count(), 0);
    click(root(), {150, 150});
    QCOMPARE(clicked.count(), 1);
}

void tst_Frames::listItemStates_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QColor WColorSet::*>("state");
    QTest::newRow("normal") << QByteArray("({})") << &WColorSet::normal;
    QTest::newRow("hovered") << QByteArray("({ hovered: true, checked: true })") << &WColorSet::hovered;
    QTest::newRow("pressed") << QByteArray("({ pressed: true })") << &WColorSet::pressed;
    QTest::newRow("checked") << QByteArray("({ checked: true })") << &WColorSet::checked;
}

void tst_Frames::listItemStates()
{
    QFETCH(const QByteArray, target);
    QFETCH(QColor WColorSet::*const, state);
    QVERIFY(show("ListItemBackground { controlsTarget: " + target + " }"));
    QCOMPARE(color(background(root())), application()->getColorSet(u"listitem-background"_s).*state);
    QCOMPARE(borderWidth(background(root())), 0);
    QCOMPARE(root()->implicitHeight(), 40);
}

void tst_Frames::listItemByItself()
{
    QVERIFY(show("Item { ListItemBackground { objectName: 'item'; width: 100; borderWidth: 2; "
                 "borderColorSetName: 'separator-primary'; radius: 6 } }"));
    auto *item = find(u"item"_s);
    moveMouseAway();
    const WColorSet colors = application()->getColorSet(u"listitem-background"_s);
    QTRY_COMPARE(color(background(item)), colors.normal);
    moveMouseTo(item);
    QTRY_COMPARE(color(background(item)), colors.hovered);
    moveMouseAway();
    QTRY_COMPARE(color(background(item)), colors.normal);
    QCOMPARE(borderWidth(background(item)), 2);
    QCOMPARE(borderColor(background(item)), application()->getColorSet(u"separator-primary"_s).normal);
    QCOMPARE(background(item)->property("radius").toInt(), 6);
}

// Three panes, 400 pixels long: a (100, from 50 to 200), b (fills, 100 at least), c (80).
QQuickItem *tst_Frames::showSplitView(const QByteArray &properties, bool isVertical)
{
    QByteArray qml = "Item { implicitWidth: 400; implicitHeight: 400; WSplitView { objectName: 'view'; "
                     "width: 400; height: 400; orientation: %1; handleAccessibleName: 'Divider'; "
        + properties
        + "Item { objectName: 'a'; SplitView.preferred%2: 100; SplitView.minimum%2: 50; "
          "SplitView.maximum%2: 200 } "
          "Item { objectName: 'b'; SplitView.fill%2: true; SplitView.minimum%2: 100 } "
          "Item { objectName: 'c'; SplitView.preferred%2: 80 } } }";
    qml.replace("%1", isVertical ? "Qt.Vertical" : "Qt.Horizontal").replace("%2", isVertical ? "Height" : "Width");
    return show(qml);
}

QList<QQuickItem *> tst_Frames::handles() const
{
    QList<QQuickItem *> handles;
    const QList<QQuickItem *> children =
        root()->childItems().first()->childItems() + find(u"a"_s)->parentItem()->childItems();
    for (QQuickItem *item : children) {
        if (item->activeFocusOnTab() && !handles.contains(item))
            handles.append(item);
    }
    std::ranges::sort(handles, {}, [](const QQuickItem *item) { return item->x() + item->y(); });
    return handles;
}

QQuickItem *tst_Frames::grip(QQuickItem *handle) const
{
    const QList<QQuickItem *> children = handle->childItems();
    const auto found =
        std::ranges::find_if(children, [](const QQuickItem *item) { return item->property("radius").toInt() == 2; });
    return found == children.end() ? nullptr : *found;
}

void tst_Frames::splitViewKeys_data()
{
    QTest::addColumn<bool>("isVertical");
    QTest::addColumn<int>("handle");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QList<int>>("sizes");
    const QList<int> unchanged = {100, 204, 80};
    QTest::newRow("right") << false << 0 << Qt::Key_Right << QList{116, 188, 80};
    QTest::newRow("left") << false << 0 << Qt::Key_Left << QList{84, 220, 80};
    QTest::newRow("page down") << false << 0 << Qt::Key_PageDown << QList{164, 140, 80};
    QTest::newRow("page up, to the smallest") << false << 0 << Qt::Key_PageUp << QList{50, 254, 80};
    QTest::newRow("home, to the smallest") << false << 0 << Qt::Key_Home << QList{50, 254, 80};
    QTest::newRow("end, to the largest") << false << 0 << Qt::Key_End << QList{200, 104, 80};
    QTest::newRow("up across") << false << 0 << Qt::Key_Up << unchanged;
    QTest::newRow("another key") << false << 0 << Qt::Key_A << unchanged;
    QTest::newRow("second handle, right") << false << 1 << Qt::Key_Right << QList{100, 220, 64};
    QTest::newRow("second handle, left") << false << 1 << Qt::Key_Left << QList{100, 188, 96};
    QTest::newRow("second handle, home, to what the filling pane can give")
        << false << 1 << Qt::Key_Home << QList{100, 100, 184};
    QTest::newRow("second handle, end, to nothing") << false << 1 << Qt::Key_End << QList{100, 284, 0};
    QTest::newRow("vertical, down") << true << 0 << Qt::Key_Down << QList{116, 188, 80};
    QTest::newRow("vertical, up") << true << 0 << Qt::Key_Up << QList{84, 220, 80};
    QTest::newRow("vertical, right across") << true << 0 << Qt::Key_Right << unchanged;
    QTest::newRow("vertical, second handle, end") << true << 1 << Qt::Key_End << QList{100, 284, 0};
}

void tst_Frames::splitViewKeys()
{
    QFETCH(const bool, isVertical);
    QFETCH(const int, handle);
    QFETCH(const Qt::Key, key);
    QFETCH(const QList<int>, sizes);
    QVERIFY(showSplitView({}, isVertical));
    const auto present = [this, isVertical] {
        QList<int> extents;
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            extents.append(int(isVertical ? find(name)->height() : find(name)->width()));
        return extents;
    };
    QTRY_COMPARE(present(), QList({100, 204, 80}));
    QCOMPARE(handles().size(), 2);
    handles().at(handle)->forceActiveFocus(Qt::TabFocusReason);
    press(key);
    QTRY_COMPARE(present(), sizes);
}

void tst_Frames::splitViewDrag()
{
    QVERIFY(showSplitView());
    QTRY_COMPARE(find(u"a"_s)->width(), 100);
    const QPoint start(104, 200);
    QTest::mousePress(window(), Qt::LeftButton, {}, start);
    QTest::mouseMove(window(), start + QPoint(20, 0));
    QTest::mouseMove(window(), start + QPoint(40, 0));
    QTRY_COMPARE(find(u"a"_s)->width(), 140);
    QTest::mouseMove(window(), start + QPoint(250, 0));
    QTRY_COMPARE(find(u"a"_s)->width(), 200);
    QTest::mouseRelease(window(), Qt::LeftButton, {}, start + QPoint(250, 0));
    QCOMPARE(find(u"b"_s)->width(), 104);
}

void tst_Frames::splitViewColors()
{
    QVERIFY(showSplitView());
    const WColorSet colors = application()->getColorSet(u"scrollbar-thumb-background"_s);
    QQuickItem *handle = handles().first();
    const QQuickItem *rectangle = grip(handle);
    QVERIFY(rectangle);
    moveMouseAway();
    QTRY_COMPARE(color(rectangle), colors.normal);
    moveMouseTo(handle);
    QTRY_COMPARE(color(rectangle), colors.hovered);
    const QPoint centre = handle->mapToScene({4, 100}).toPoint();
    QTest::mousePress(window(), Qt::LeftButton, {}, centre);
    QTRY_COMPARE(color(rectangle), colors.pressed);
    QTest::mouseRelease(window(), Qt::LeftButton, {}, centre);
    moveMouseAway();
    QTRY_COMPARE(color(rectangle), colors.normal);
    handle->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(color(rectangle), colors.focused);
    find(u"view"_s)->setEnabled(false);
    QCOMPARE(color(rectangle), colors.disabled);
}

void tst_Frames::splitViewFocus()
{
    QVERIFY(showSplitView());
    const QList<QQuickItem *> found = handles();
    press(Qt::Key_Tab);
    QVERIFY(found.at(0)->hasActiveFocus());
    press(Qt::Key_Tab);
    QVERIFY(found.at(1)->hasActiveFocus());
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(found.at(0)->hasActiveFocus());
    find(u"view"_s)->setEnabled(false);
    QVERIFY(!found.at(0)->hasActiveFocus());
}

void tst_Frames::splitViewAccessibility()
{
    QVERIFY(showSplitView());
    QTRY_COMPARE(find(u"a"_s)->width(), 100);
    QAccessibleInterface *handle = QAccessible::queryAccessibleInterface(handles().first());
    QVERIFY(handle);
    QCOMPARE(handle->role(), QAccessible::Splitter);
    QCOMPARE(handle->text(QAccessible::Name), u"Divider"_s);
    QVERIFY(handle->state().focusable);
    QVERIFY(handle->actionInterface());
    handle->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QTRY_COMPARE(find(u"a"_s)->width(), 116);
    handle->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    QTRY_COMPARE(find(u"a"_s)->width(), 100);
}

void tst_Frames::cursorInAText()
{
    QVERIFY(show("Item { TextInput { objectName: 'input'; width: 200; height: 30; text: 'abc'; "
                 "cursorDelegate: WCursorItem { objectName: 'cursor' } } }"));
    auto *input = find(u"input"_s);
    input->forceActiveFocus();
    auto *cursor = find(u"cursor"_s);
    QVERIFY(cursor);
    QVERIFY(cursor->isVisible());
    QCOMPARE(cursor->width(), 1);
    QCOMPARE(color(cursor->childItems().first()), application()->getColorSet(u"textinput-text"_s).normal);
    input->setFocus(false);
    QVERIFY(!cursor->isVisible());
}

void tst_Frames::cursorBlinks()
{
    QStyleHints *hints = QGuiApplication::styleHints();
    const int flashTime = hints->cursorFlashTime();
    hints->setCursorFlashTime(40);
    const auto restore = qScopeGuard([hints, flashTime] { hints->setCursorFlashTime(flashTime); });
    QVERIFY(show("WCursorItem { x: 10 }"));
    QVERIFY(root()->property("isBlinking").toBool());
    const QQuickItem *line = root()->childItems().first();
    QVERIFY(line->isVisible());
    QTRY_VERIFY(!line->isVisible());
    QTRY_VERIFY(line->isVisible());
    QTRY_VERIFY(!line->isVisible());
    root()->setX(20);
    QVERIFY(line->isVisible());
    QTRY_VERIFY(!line->isVisible());
    hints->setCursorFlashTime(0);
    QVERIFY(!root()->property("isBlinking").toBool());
    QVERIFY(line->isVisible());
}

void tst_Frames::cursorWithoutAnimations()
{
    application()->setAnimationsDisabled(true);
    QVERIFY(show("WCursorItem {}"));
    QVERIFY(!root()->property("isBlinking").toBool());
    QVERIFY(root()->childItems().first()->isVisible());
}

void tst_Frames::shortcut()
{
    QVERIFY(show("Item { WShortcut { objectName: 'shortcut'; sequence: 'Ctrl+K' } }"));
    auto *shortcut = find<QObject>(u"shortcut"_s);
    QSignalSpy activated(shortcut, SIGNAL(activated()));
    press(Qt::Key_K);
    QCOMPARE(activated.count(), 0);
    press(Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(shortcut->property("autoRepeat").toBool(), false);
}

void tst_Frames::shortcutsOfTheSameKeys()
{
    QVERIFY(show("Item { WShortcut { objectName: 'one'; sequence: 'Ctrl+K' } "
                 "WShortcut { objectName: 'other'; sequence: 'Ctrl+K' } }"));
    QSignalSpy one(find<QObject>(u"one"_s), SIGNAL(activated()));
    QSignalSpy other(find<QObject>(u"other"_s), SIGNAL(activated()));
    press(Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(one.count() + other.count(), 1);
    press(Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(one.count(), 1);
    QCOMPARE(other.count(), 1);
}

void tst_Frames::disabledShortcut()
{
    QVERIFY(show("Item { WShortcut { objectName: 'shortcut'; sequence: 'Ctrl+K'; enabled: false } }"));
    QSignalSpy activated(find<QObject>(u"shortcut"_s), SIGNAL(activated()));
    press(Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(activated.count(), 0);
}

bool tst_Frames::makeFrameless(const QRect &geometry)
{
    window()->hide();
    window()->setFlag(Qt::FramelessWindowHint);
    window()->setGeometry(geometry);
    window()->show();
    return QTest::qWaitForWindowActive(window())
        && QTest::qWaitFor([this, geometry] { return window()->geometry() == geometry; });
}

// The window manager takes over and follows the cursor itself, until the window is closed. It tells the window where it
// is only when the button is released, and nothing here holds one, so look at the screen.
void tst_Frames::moveAreaByTheDesktop()
{
    QVERIFY(show("WRectangle { implicitWidth: 400; implicitHeight: 300; "
                 "backgroundColorSetName: 'button-primary-background'; "
                 "WMoveWindowArea { objectName: 'area'; width: 400; height: 40; hoverEnabled: true } }"));
    const QRect geometry(300, 200, 400, 300);
    QVERIFY(makeFrameless(geometry));
    const QPoint start(100, 20);
    QCursor::setPos(geometry.topLeft() + start);
    QTRY_VERIFY(find(u"area"_s)->property("containsMouse").toBool());
    const auto isWindowAt = [this](const QPoint &position) {
        return window()->screen()->grabWindow().toImage().pixelColor(position) == color(root());
    };
    QTRY_VERIFY(isWindowAt(geometry.bottomRight()));
    QTest::mousePress(window(), Qt::LeftButton, {}, start);
    QTest::mouseMove(window(), start + QPoint(20, 0));
    const QPoint beyond = geometry.bottomRight() + QPoint(20, 20);
    const auto follows = [&] {
        QCursor::setPos(QCursor::pos() + QPoint(5, 5));
        return isWindowAt(beyond) && !isWindowAt(geometry.topLeft());
    };
    QVERIFY(!isWindowAt(beyond));
    QVERIFY(QTest::qWaitFor(follows));
}

void tst_Frames::resizeFrameByTheDesktop()
{
    QVERIFY(show("Item { WResizeFrame { objectName: 'frame'; anchors.fill: parent; minWidth: 390; maxWidth: 430 } }"));
    static_cast<QQuickView *>(window())->setResizeMode(QQuickView::SizeRootObjectToView);
    const QRect geometry(300, 200, 400, 300);
    QVERIFY(makeFrameless(geometry));
    QTRY_COMPARE(find(u"frame"_s)->width(), 400);
    const QPoint start(398, 298);
    QCursor::setPos(geometry.topLeft() + start);
    QTest::mousePress(window(), Qt::LeftButton, {}, start);
    QVERIFY(find(u"frame"_s)->property("startTime").toDouble() > 0);
    const auto follows = [this, &geometry] {
        QCursor::setPos(QCursor::pos() + QPoint(5, 5));
        return window()->height() > geometry.height() + 60;
    };
    QVERIFY(QTest::qWaitFor(follows));
    QTRY_COMPARE(window()->width(), 430);
    QCOMPARE(window()->position(), geometry.topLeft());
}

LUMAKIT_TEST_MAIN(tst_Frames)
#include "tst_frames.moc"
