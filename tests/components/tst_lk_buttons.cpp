#include <ComponentTest.h>

#include <LKColorData.h>
#include <LKEventData.h>
#include <LKIconButtonData.h>
#include <LKPillButtonData.h>
#include <LKRoundButtonData.h>

#include <QAccessible>
#include <QQmlProperty>
#include <QQuickPaintedItem>

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

using namespace Qt::StringLiterals;

namespace {

// A button that notes its signals in their order.
const QByteArray Logging = "property list<string> log; onPressed: log.push('pressed'); "
                           "onReleased: log.push('released'); onCanceled: log.push('canceled'); "
                           "onClicked: log.push('clicked'); onToggled: log.push('toggled'); "
                           "onDoubleClicked: log.push('doubleClicked'); onPressAndHold: log.push('pressAndHold'); "
                           "onCheckedChanged: log.push('checked ' + checked); ";

/// A screen reader, which a button costs nothing for until there is one.
class ScreenReader
{
public:
    ScreenReader() { run(true); }
    ~ScreenReader() { run(false); }
    Q_DISABLE_COPY_MOVE(ScreenReader)

private:
    static void run(bool running)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(running);
        QAccessible::setActive(running);
    }
};

constexpr auto States = {"normal", "hovered", "pressed", "disabled", "focused", "checked"};

} // namespace

class tst_LkButtons : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void keys_data();
    void keys();
    void aKeyActsOnItsRelease();
    void aRepeatedKeyActsOnce();
    void aKeyThatIsHeldWhileTheFocusLeaves_data();
    void aKeyThatIsHeldWhileTheFocusLeaves();
    void hasRoleAndNameWhenAsked();
    void anotherKeyGoesToTheParent();
    void aKeyTriggersTheAction();
    void oneOfExclusiveButtonsStaysOn();
    void focusByTabOnly_data();
    void focusByTabOnly();
    void baseMetrics();
    void accessibility_data();
    void accessibility();

    void stylesOfAPill_data();
    void stylesOfAPill();
    void stylesOfARoundButton_data();
    void stylesOfARoundButton();
    void sizesOfAPill_data();
    void sizesOfAPill();
    void sizesOfARoundButton_data();
    void sizesOfARoundButton();
    void typesOfAnIconButton_data();
    void typesOfAnIconButton();
    void sizesOfAnIconButton();
    void stateOfAButton_data();
    void stateOfAButton();
    void aThemeRecolours_data();
    void aThemeRecolours();
    void borderFollowsItsData_data();
    void borderFollowsItsData();
    void hoverOverride();

    void whatIsAbsentHasNoItem();
    void contentStandsInOrder_data();
    void contentStandsInOrder();
    void directionalIconsMirror_data();
    void directionalIconsMirror();
    void aLongTextIsElided_data();
    void aLongTextIsElided();
    void sizeFollowsTheFontScale();
    void contentFollowsItsData();
    void anIconInNoColourIsNotAskedFor();
    void focusRing_data();
    void focusRing();

    void linkStyles_data();
    void linkStyles();
    void linkTakesItsColourFromItsControl();
    void linkChangesTheCursor_data();
    void linkChangesTheCursor();

    void dualButtonsPress_data();
    void dualButtonsPress();
    void dualButtonsColours_data();
    void dualButtonsColours();
    void dualButtonsOrder_data();
    void dualButtonsOrder();
    void arrowsGoToTheOtherButton_data();
    void arrowsGoToTheOtherButton();
    void dualButtonWidth_data();
    void dualButtonWidth();
    void dualButtonMiddle();
    void dualIconButtonsStandOneAboveTheOther();

    void oneHalfIsOn_data();
    void oneHalfIsOn();
    void theHostChoosesTheHalf();
    void halvesShowWhichIsOn();

    void badgeButtonTriggers();
    void badgeIsThereWhileVisible();
    void badgeButtonElides_data();
    void badgeButtonElides();
    void badgeButtonOrder_data();
    void badgeButtonOrder();

private:
    static QColor color(const QObject *object, const char *property = "color")
    {
        return object->property(property).value<QColor>();
    }

    static QQuickItem *item(const QObject *object, const char *property)
    {
        return object->property(property).value<QQuickItem *>();
    }

    static QColor borderColor(const QQuickItem *rectangle)
    {
        return QQmlProperty::read(rectangle, u"border.color"_s).value<QColor>();
    }

    static int borderWidth(const QQuickItem *rectangle)
    {
        return QQmlProperty::read(rectangle, u"border.width"_s).toInt();
    }

    static double sceneX(const QQuickItem *item) { return item->mapToScene({}).x(); }

    /// The children, however deep, of the class or of one derived from it, from left to right.
    static QList<QQuickItem *> itemsOf(const QQuickItem *parent, const char *className)
    {
        QList<QQuickItem *> items;
        for (QQuickItem *child : parent->childItems()) {
            if (child->inherits(className))
                items += child;
            items += itemsOf(child, className);
        }
        std::ranges::stable_sort(items, {}, [](const QQuickItem *child) { return sceneX(child); });
        return items;
    }

    static QList<QQuickItem *> icons(const QQuickItem *parent) { return itemsOf(parent, "QQuickImage"); }
    static QList<QQuickItem *> texts(const QQuickItem *parent) { return itemsOf(parent, "QQuickText"); }
    static QList<QQuickItem *> rings(const QQuickItem *parent) { return itemsOf(parent, "QQuickPaintedItem"); }

    template<typename Data> static Data *data(QObject *button)
    {
        return qobject_cast<Data *>(qmlAttachedPropertiesObject<Data>(button, false));
    }

    WColorSet colorSet(const QString &token) const { return application()->getColorSet(token); }

    static QString iconSource(const QColor &color, const QString &name)
    {
        return u"image://svg/%1/%2"_s.arg(color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb), name);
    }

    void pressDown(Qt::Key key) const { QTest::keyPress(window(), key); }
    void letGo(Qt::Key key) const { QTest::keyRelease(window(), key); }

    void repeat(QEvent::Type type, Qt::Key key) const
    {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(window(), &event);
    }

    /// Brings the button, which is the root's child "button", into the state.
    void enterState(QQuickItem *button, const QString &state) const
    {
        moveMouseAway();
        if (state == "hovered"_L1) {
            moveMouseTo(button);
        } else if (state == "pressed"_L1) {
            button->forceActiveFocus(Qt::TabFocusReason);
            pressDown(Qt::Key_Space);
        } else if (state == "disabled"_L1) {
            button->setEnabled(false);
        } else if (state == "focused"_L1) {
            button->forceActiveFocus(Qt::TabFocusReason);
        } else if (state == "checked"_L1) {
            button->setProperty("checked", true);
        }
    }
};

void tst_LkButtons::keys_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("log");
    const QStringList clicked{u"clicked"_s};
    const QStringList on{u"checked true"_s, u"toggled"_s};
    const QStringList off{u"checked false"_s, u"toggled"_s};
    const auto row = [](const char *name, const QByteArray &button, Qt::Key key, const QStringList &log) {
        QTest::newRow(name) << button << int(key) << log;
    };
    row("space", "LKButtonBase {", Qt::Key_Space, clicked);
    row("enter", "LKButtonBase {", Qt::Key_Enter, clicked);
    row("return", "LKButtonBase {", Qt::Key_Return, clicked);
    row("space, checkable", "LKButtonBase { checkable: true;", Qt::Key_Space, on);
    row("enter, checkable", "LKButtonBase { checkable: true;", Qt::Key_Enter, on);
    row("return, checkable", "LKButtonBase { checkable: true;", Qt::Key_Return, on);
    row("space, checked", "LKButtonBase { checkable: true; checked: true;", Qt::Key_Space, off);
    row("a letter", "LKButtonBase {", Qt::Key_A, {});
    row("select, which other buttons take", "LKButtonBase {", Qt::Key_Select, {});
    row("space, disabled", "LKButtonBase { enabled: false;", Qt::Key_Space, {});
    row("return, disabled and checkable", "LKButtonBase { enabled: false; checkable: true;", Qt::Key_Return, {});
    row("pill", "LKPillButton {", Qt::Key_Return, clicked);
    row("round button", "LKRoundButton {", Qt::Key_Return, clicked);
    row("icon button", "LKIconButton { checkable: true;", Qt::Key_Return, on);
    row("tool button", "LKToolButton {", Qt::Key_Return, clicked);
    row("link", "LKHyperlinkButton {", Qt::Key_Return, clicked);
}

void tst_LkButtons::keys()
{
    QFETCH(const QByteArray, button);
    QFETCH(const int, key);
    QFETCH(const QStringList, log);
    QVERIFY(show(button + Logging + "text: 'Press' }"));
    root()->setProperty("log", QStringList()); // checked at first
    root()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key(key));
    QCOMPARE(root()->property("log").toStringList().join(u','), log.join(u','));
}

void tst_LkButtons::aKeyActsOnItsRelease()
{
    QVERIFY(show("LKButtonBase {" + Logging + "text: 'Press' }"));
    root()->forceActiveFocus(Qt::TabFocusReason);
    pressDown(Qt::Key_Return);
    QCOMPARE(root()->property("down").toBool(), true);
    QCOMPARE(root()->property("log").toStringList(), QStringList());
    letGo(Qt::Key_Return);
    QCOMPARE(root()->property("down").toBool(), false);
    QCOMPARE(root()->property("log").toStringList(), QStringList(u"clicked"_s));
}

void tst_LkButtons::aRepeatedKeyActsOnce()
{
    QVERIFY(show("LKButtonBase {" + Logging + "text: 'Press' }"));
    root()->forceActiveFocus(Qt::TabFocusReason);
    pressDown(Qt::Key_Space);
    for (int i = 0; i < 3; ++i) {
        repeat(QEvent::KeyRelease, Qt::Key_Space);
        repeat(QEvent::KeyPress, Qt::Key_Space);
    }
    QCOMPARE(root()->property("down").toBool(), true);
    QCOMPARE(root()->property("log").toStringList(), QStringList());
    letGo(Qt::Key_Space);
    QCOMPARE(root()->property("log").toStringList(), QStringList(u"clicked"_s));
}

void tst_LkButtons::aKeyThatIsHeldWhileTheFocusLeaves_data()
{
    QTest::addColumn<bool>("repeats");
    QTest::newRow("held") << false;
    QTest::newRow("repeated where the focus is now") << true;
}

void tst_LkButtons::aKeyThatIsHeldWhileTheFocusLeaves()
{
    QFETCH(const bool, repeats);
    QVERIFY(show("Column { LKButtonBase { objectName: 'first'; text: 'A';" + Logging
                 + "} LKButtonBase { objectName: 'second'; text: 'B';" + Logging + "} }"));
    auto *first = find(u"first"_s);
    auto *second = find(u"second"_s);
    first->forceActiveFocus(Qt::TabFocusReason);
    pressDown(Qt::Key_Space);
    press(Qt::Key_Tab);
    QVERIFY(second->hasActiveFocus());
    QCOMPARE(first->property("down").toBool(), false);
    if (repeats) {
        repeat(QEvent::KeyRelease, Qt::Key_Space);
        repeat(QEvent::KeyPress, Qt::Key_Space);
    }
    letGo(Qt::Key_Space);
    QCOMPARE(first->property("log").toStringList(), QStringList());
    QCOMPARE(second->property("log").toStringList(),
             QStringList(u"clicked"_s)); // an oddity: it acts where it is released
}

// A screen reader, or a test, that asks finds role and name.
void tst_LkButtons::hasRoleAndNameWhenAsked()
{
    QVERIFY(show("LKPillButton { text: 'Join' }"));
    const QAccessibleInterface *node = QAccessible::queryAccessibleInterface(root());
    QVERIFY(node);
    QCOMPARE(node->role(), QAccessible::Button);
    QCOMPARE(node->text(QAccessible::Name), u"Join"_s);
    root()->setProperty("text", u"Leave"_s);
    QCOMPARE(node->text(QAccessible::Name), u"Leave"_s);
}

void tst_LkButtons::anotherKeyGoesToTheParent()
{
    QVERIFY(
        show("FocusScope { width: 100; height: 100; property list<int> pressed; property list<int> released; "
             "Keys.onPressed: event => pressed.push(event.key); Keys.onReleased: event => released.push(event.key); "
             "LKButtonBase { objectName: 'button'; text: 'Press' } }"));
    find(u"button"_s)->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Escape);
    press(Qt::Key_Space);
    const QList<int> escape{Qt::Key_Escape};
    QCOMPARE(root()->property("pressed").value<QList<int>>(), escape);
    QCOMPARE(root()->property("released").value<QList<int>>(), escape);
}

void tst_LkButtons::aKeyTriggersTheAction()
{
    QVERIFY(show("LKPillButton { " + Logging + "action: T.Action { objectName: 'action'; text: 'Save' } }"));
    QSignalSpy triggered(find<QObject>(u"action"_s), SIGNAL(triggered(QObject *)));
    root()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(root()->property("log").toStringList(), QStringList(u"clicked"_s));
}

void tst_LkButtons::oneOfExclusiveButtonsStaysOn()
{
    QVERIFY(
        show("Row { LKPillButton { objectName: 'first'; text: 'A'; checkable: true; checked: true; autoExclusive: true;"
             + Logging + "} LKPillButton { objectName: 'second'; text: 'B'; checkable: true; autoExclusive: true;"
             + Logging + "} }"));
    auto *first = find(u"first"_s);
    auto *second = find(u"second"_s);
    first->setProperty("log", QStringList());
    first->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QCOMPARE(first->property("log").toStringList(), QStringList());
    second->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QCOMPARE(second->property("log").toStringList(), (QStringList{u"checked true"_s, u"toggled"_s}));
    QCOMPARE(first->property("log").toStringList(), QStringList(u"checked false"_s));
}

void tst_LkButtons::focusByTabOnly_data()
{
    QTest::addColumn<QByteArray>("button");
    for (const QByteArray type :
         {"LKButtonBase", "LKPillButton", "LKRoundButton", "LKIconButton", "LKToolButton", "LKHyperlinkButton"})
        QTest::newRow(type) << type;
}

void tst_LkButtons::focusByTabOnly()
{
    QFETCH(const QByteArray, button);
    QVERIFY(show("Item { width: 100; height: 100; " + button
                 + " { objectName: 'button'; width: 40; height: 32; text: 'Press' } }"));
    auto *target = find(u"button"_s);
    QSignalSpy clicked(target, SIGNAL(clicked()));
    click(target);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!target->hasActiveFocus());
    press(Qt::Key_Tab);
    QVERIFY(target->hasActiveFocus());
}

void tst_LkButtons::baseMetrics()
{
    QVERIFY(show("LKButtonBase { contentItem: Item { implicitWidth: 50; implicitHeight: 20 } }"));
    QCOMPARE(root()->property("padding").toInt(), 6);
    QCOMPARE(root()->property("horizontalPadding").toInt(), 8);
    QCOMPARE(root()->property("spacing").toInt(), 6);
    QCOMPARE(root()->size(), QSizeF(50 + 2 * 8, 20 + 2 * 6));
    QCOMPARE(item(root(), "contentItem")->position(), QPointF(8, 6));
    QVERIFY(!item(root(), "background"));
}

void tst_LkButtons::accessibility_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *name, const QByteArray &qml, const QString &text,
                        QAccessible::Role role = QAccessible::Button) { QTest::newRow(name) << qml << role << text; };
    row("LKButtonBase", "LKButtonBase { text: 'Press' }", u"Press"_s);
    row("LKPillButton", "LKPillButton { text: 'Press' }", u"Press"_s);
    row("LKPillButton with another name", "LKPillButton { text: 'Join'; Accessible.name: 'Join the meeting' }",
        u"Join the meeting"_s);
    row("LKRoundButton", "LKRoundButton { buttonIcon: 'list'; Accessible.name: 'List' }", u"List"_s);
    row("LKIconButton", "LKIconButton { buttonType: LKButtonType.Pen; Accessible.name: 'Draw' }", u"Draw"_s);
    row("LKToolButton", "LKToolButton { iconName: 'list'; Accessible.name: 'List' }", u"List"_s);
    row("LKToolButton with a text", "LKToolButton { iconName: 'list'; text: 'List' }", u"List"_s);
    row("LKHyperlinkButton", "LKHyperlinkButton { text: 'Learn more' }", u"Learn more"_s, QAccessible::Link);
    row("LKBadgeButton", "LKBadgeButton { buttonText: 'Inbox'; tooltip: 'Tip' }", u"Inbox"_s);
    row("LKBadgeButton without a text", "LKBadgeButton { iconName: 'list'; tooltip: 'Tip' }", u"Tip"_s);
}

void tst_LkButtons::accessibility()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QAccessible::Role, role);
    QFETCH(const QString, name);
    const ScreenReader reader;
    QVERIFY(show(qml));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(root());
    QVERIFY(interface);
    QCOMPARE(interface->role(), role);
    QCOMPARE(interface->text(QAccessible::Name), name);
    QVERIFY(interface->state().focusable);
    QVERIFY(!interface->state().checkable);

    QSignalSpy clicked(root(), SIGNAL(clicked()));
    QSignalSpy toggled(root(), SIGNAL(toggled()));
    QAccessibleActionInterface *actions = interface->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(toggled.count(), 0);

    root()->setProperty("checkable", true);
    QVERIFY(interface->state().checkable);
    QCOMPARE(interface->role(), role);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(root()->property("checked").toBool(), true);
    QCOMPARE(toggled.count(), 1);
    QVERIFY(interface->state().checked);
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(root()->property("checked").toBool(), false);
    QCOMPARE(toggled.count(), 2);

    root()->setEnabled(false);
    QVERIFY(interface->state().disabled);
    const auto before = clicked.count();
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(toggled.count(), 2);
    QCOMPARE(clicked.count(), before);
}

namespace {

void styleRows()
{
    QTest::addColumn<LKButtonStyle::Style>("style");
    QTest::addColumn<QString>("tokens");
    QTest::addColumn<bool>("border");
    const auto row = [](const char *name, LKButtonStyle::Style style, const QString &tokens, bool border = false) {
        QTest::newRow(name) << style << tokens << border;
    };
    row("primary", LKButtonStyle::Primary, u"button-primary"_s);
    row("secondary", LKButtonStyle::Secondary, u"button-secondary"_s, true);
    row("ghost", LKButtonStyle::Ghost, u"button-ghost"_s);
    row("cancel ghost", LKButtonStyle::CancelGhost, u"button-cancel-ghost"_s);
    row("message ghost", LKButtonStyle::MessageGhost, u"button-message-ghost"_s);
    row("join", LKButtonStyle::Join, u"button-join-fill"_s);
    row("outline join", LKButtonStyle::OutlineJoin, u"button-join-outline"_s, true);
    row("cancel", LKButtonStyle::Cancel, u"button-cancel-fill"_s);
    row("outline cancel", LKButtonStyle::OutlineCancel, u"button-cancel-outline"_s, true);
    row("message", LKButtonStyle::Message, u"button-message-fill"_s);
    row("teaching primary", LKButtonStyle::TeachingPrimary, u"coachmarkteaching-button-primary"_s);
    row("teaching secondary", LKButtonStyle::TeachingSecondary, u"coachmarkteaching-button-secondary"_s, true);
}

} // namespace

void tst_LkButtons::stylesOfAPill_data()
{
    styleRows();
}

void tst_LkButtons::stylesOfAPill()
{
    QFETCH(const LKButtonStyle::Style, style);
    QFETCH(const QString, tokens);
    QFETCH(const bool, border);
    QVERIFY(show("LKPillButton { text: 'Join'; leftIcon: 'list' }"));
    root()->setProperty("buttonStyle", int(style));
    moveMouseAway();
    QCOMPARE(data<LKPillButtonData>(root())->style(), style);
    const auto *background = item(root(), "background");
    const QColor textColor = colorSet(tokens + "-text"_L1).normal;
    QCOMPARE(color(background), colorSet(tokens + "-background"_L1).normal);
    QCOMPARE(color(texts(root()).constFirst()), textColor);
    QCOMPARE(icons(root()).constFirst()->property("source").toUrl().toString(), iconSource(textColor, u"list"_s));
    QCOMPARE(data<LKPillButtonData>(root())->border(), border);
    const QImage picture = window()->grabWindow();
    const int x = int(root()->width() / 2);
    if (border)
        QCOMPARE(picture.pixelColor(x, 0).name(), colorSet(tokens + "-border"_L1).normal.name());
    else
        QCOMPARE(picture.pixelColor(x, 0), picture.pixelColor(x, 2));
}

void tst_LkButtons::stylesOfARoundButton_data()
{
    styleRows();
}

void tst_LkButtons::stylesOfARoundButton()
{
    QFETCH(const LKButtonStyle::Style, style);
    QFETCH(const QString, tokens);
    QFETCH(const bool, border);
    QVERIFY(show("LKRoundButton { buttonIcon: 'list' }"));
    root()->setProperty("buttonStyle", int(style));
    const auto *background = item(root(), "background");
    QCOMPARE(color(background), colorSet(tokens + "-background"_L1).normal);
    QCOMPARE(icons(root()).constFirst()->property("source").toUrl().toString(),
             iconSource(colorSet(tokens + "-text"_L1).normal, u"list"_s));
    if (border)
        QCOMPARE(borderColor(background), colorSet(tokens + "-border"_L1).normal);
}

void tst_LkButtons::sizesOfAPill_data()
{
    QTest::addColumn<LKButtonSize::Size>("size");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("padding");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<int>("icon");
    QTest::addColumn<WFont::Token>("font");
    QTest::newRow("XL") << LKButtonSize::XL << 40 << 16 << 6 << 20 << WFont::SubheaderPrimary;
    QTest::newRow("L") << LKButtonSize::L << 32 << 12 << 6 << 16 << WFont::SubheaderPrimary;
    QTest::newRow("M") << LKButtonSize::M << 32 << 12 << 6 << 16 << WFont::SubheaderPrimary;
    QTest::newRow("S") << LKButtonSize::S << 28 << 10 << 4 << 16 << WFont::SubheaderSecondary;
    QTest::newRow("XS") << LKButtonSize::XS << 24 << 8 << 4 << 16 << WFont::BodyTertiary;
    QTest::newRow("XXS") << LKButtonSize::XXS << 24 << 8 << 4 << 16 << WFont::BodyTertiary;
    QTest::newRow("XXXS") << LKButtonSize::XXXS << 24 << 8 << 4 << 16 << WFont::BodyTertiary;
}

void tst_LkButtons::sizesOfAPill()
{
    QFETCH(const LKButtonSize::Size, size);
    QFETCH(const int, height);
    QFETCH(const int, padding);
    QFETCH(const int, spacing);
    QFETCH(const int, icon);
    QFETCH(const WFont::Token, font);
    QVERIFY(show("LKPillButton { text: 'Join'; leftIcon: 'list'; rightIcon: 'list' }"));
    root()->setProperty("buttonSize", int(size));
    QCOMPARE(root()->height(), double(height));
    QCOMPARE(item(root(), "background")->property("radius").toReal(), height / 2.0);
    const auto *left = icons(root()).constFirst();
    const auto *right = icons(root()).constLast();
    const auto *text = texts(root()).constFirst();
    QCOMPARE(left->size(), QSizeF(icon, icon));
    QCOMPARE(right->size(), QSizeF(icon, icon));
    QTRY_COMPARE(sceneX(left), double(padding));
    QTRY_COMPARE(sceneX(text), double(padding + icon + spacing));
    QTRY_COMPARE(sceneX(right), sceneX(text) + text->width() + spacing);
    QCOMPARE(root()->width(), sceneX(right) + icon + padding);
    QCOMPARE(text->property("font").value<QFont>(), QFont(WFont(font, false)));
}

void tst_LkButtons::sizesOfARoundButton_data()
{
    QTest::addColumn<LKButtonSize::Size>("size");
    QTest::addColumn<int>("edge");
    QTest::addColumn<int>("icon");
    QTest::newRow("XL") << LKButtonSize::XL << 64 << 32;
    QTest::newRow("L") << LKButtonSize::L << 52 << 28;
    QTest::newRow("M") << LKButtonSize::M << 40 << 20;
    QTest::newRow("S") << LKButtonSize::S << 32 << 16;
    QTest::newRow("XS") << LKButtonSize::XS << 28 << 16;
    QTest::newRow("XXS") << LKButtonSize::XXS << 24 << 13;
    QTest::newRow("XXXS") << LKButtonSize::XXXS << 16 << 8;
}

void tst_LkButtons::sizesOfARoundButton()
{
    QFETCH(const LKButtonSize::Size, size);
    QFETCH(const int, edge);
    QFETCH(const int, icon);
    QVERIFY(show("LKRoundButton { buttonIcon: 'list' }"));
    root()->setProperty("buttonSize", int(size));
    QCOMPARE(root()->size(), QSizeF(edge, edge));
    QCOMPARE(item(root(), "background")->property("radius").toReal(), edge / 2.0);
    QCOMPARE(icons(root()).constFirst()->size(), QSizeF(icon, icon));
    const double margin = std::floor((edge - icon) / 2.0);
    QTRY_COMPARE(icons(root()).constFirst()->mapToItem(root(), QPointF()), QPointF(margin, margin));
}

void tst_LkButtons::typesOfAnIconButton_data()
{
    QTest::addColumn<LKButtonType::Type>("type");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("checkedIcon");
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("activeToken");
    const QString filled = u"interactiveicon-primary-filled-icon-"_s;
    const QString outline = u"interactiveicon-primary-outline-icon-"_s;
    const auto row = [](const char *name, LKButtonType::Type type, const QString &icon, const QString &checkedIcon,
                        const QString &token, const QString &activeToken) {
        QTest::newRow(name) << type << icon << checkedIcon << token << activeToken;
    };
    const QString inactive = filled + "inactive"_L1;
    const QString active = filled + "active"_L1;
    row("settings", LKButtonType::Settings, u"settings-bold"_s, u"settings-filled"_s, inactive, active);
    row("favourite", LKButtonType::Favorite, u"favorite-bold"_s, u"favorite-filled"_s,
        u"interactiveicon-tertiary-filled-icon-inactive"_s, u"interactiveicon-tertiary-filled-favorite-icon-active"_s);
    row("attachment", LKButtonType::Attachment, u"attachment-bold"_s, u"attachment-bold"_s, outline + "inactive"_L1,
        outline + "active"_L1);
    row("emoji", LKButtonType::Emoji, u"emoji-happy-bold"_s, u"emoji-happy-bold"_s, inactive, active);
    row("link", LKButtonType::Link, u"link-bold"_s, u"link-bold"_s, inactive, active);
    row("pen", LKButtonType::Pen, u"pen-bold"_s, u"pen-bold"_s, inactive, active);
}

void tst_LkButtons::typesOfAnIconButton()
{
    QFETCH(const LKButtonType::Type, type);
    QFETCH(const QString, icon);
    QFETCH(const QString, checkedIcon);
    QFETCH(const QString, token);
    QFETCH(const QString, activeToken);
    QVERIFY(show("LKIconButton { checkable: true }"));
    QVERIFY(icons(root()).isEmpty());
    root()->setProperty("buttonType", int(type));
    moveMouseAway();
    QCOMPARE(icons(root()).size(), 1);
    const auto *image = icons(root()).constFirst();
    QCOMPARE(image->property("source").toUrl().toString(), iconSource(colorSet(token).normal, icon));
    QCOMPARE(color(item(root(), "background")), colorSet(u"interactiveicon-container-background"_s).normal);
    root()->setProperty("checked", true);
    QCOMPARE(image->property("source").toUrl().toString(), iconSource(colorSet(activeToken).checked, checkedIcon));
    root()->setEnabled(false);
    QCOMPARE(image->property("source").toUrl().toString(), iconSource(colorSet(activeToken).disabled, checkedIcon));
}

void tst_LkButtons::sizesOfAnIconButton()
{
    QVERIFY(show("LKIconButton { buttonType: LKButtonType.Pen }"));
    QCOMPARE(root()->size(), QSizeF(32, 32));
    root()->setProperty("buttonSize", int(LKButtonSize::XL));
    QCOMPARE(root()->size(), QSizeF(64, 64));
    QCOMPARE(icons(root()).constFirst()->size(), QSizeF(32, 32));
    QCOMPARE(item(root(), "background")->property("radius").toReal(), 32.0);
}

void tst_LkButtons::stateOfAButton_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("tokens");
    QTest::addColumn<QString>("state");
    for (const char *state : States) {
        const QString name = QString::fromLatin1(state);
        QTest::addRow("pill, %s", state) << QByteArray("LKPillButton") << u"button-primary"_s << name;
        QTest::addRow("tool button, %s", state) << QByteArray("LKToolButton") << u"button-ghost"_s << name;
    }
    QTest::newRow("round button") << QByteArray("LKRoundButton") << u"button-primary"_s << u"hovered"_s;
}

void tst_LkButtons::stateOfAButton()
{
    QFETCH(const QByteArray, type);
    QFETCH(const QString, tokens);
    QFETCH(const QString, state);
    QVERIFY(show("Item { width: 400; height: 300; " + type + " { objectName: 'button'; x: 20; y: 20 } }"));
    auto *button = find(u"button"_s);
    enterState(button, state);
    QTRY_COMPARE(color(item(button, "background")), colorSet(tokens + "-background"_L1).getColor(state));

    const auto *pill = data<LKPillButtonData>(button);
    const LKEventData *event = pill ? pill->eventData() : data<LKRoundButtonData>(button)->eventData();
    QCOMPARE(event->enabled(), state != "disabled"_L1);
    QCOMPARE(event->hovered(), state == "hovered"_L1);
    QCOMPARE(event->pressed(), state == "pressed"_L1);
    QCOMPARE(event->checked(), state == "checked"_L1);
    QCOMPARE(event->activeFocus(), state == "focused"_L1 || state == "pressed"_L1);
    if (state == "pressed"_L1)
        letGo(Qt::Key_Space);
}

void tst_LkButtons::aThemeRecolours_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QString>("background");
    QTest::addColumn<QString>("text");
    QTest::newRow("pill") << QByteArray("LKPillButton { leftIcon: 'list' }") << u"button-primary-background"_s
                          << u"button-primary-text"_s;
    QTest::newRow("round button") << QByteArray("LKRoundButton { buttonIcon: 'list' }")
                                  << u"button-primary-background"_s << u"button-primary-text"_s;
    QTest::newRow("icon button") << QByteArray("LKIconButton { buttonType: LKButtonType.Pen }")
                                 << u"interactiveicon-container-background"_s
                                 << u"interactiveicon-primary-filled-icon-inactive"_s;
    QTest::newRow("tool button") << QByteArray("LKToolButton { iconName: 'list' }") << u"button-ghost-background"_s
                                 << u"button-ghost-text"_s;
}

void tst_LkButtons::aThemeRecolours()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QString, background);
    QFETCH(const QString, text);
    QVERIFY(show(qml));
    const QColor before = colorSet(text).normal;
    const auto *icon = icons(root()).constFirst();
    application()->setThemeMode(u"dark"_s);
    QVERIFY(colorSet(text).normal != before);
    QCOMPARE(color(item(root(), "background")), colorSet(background).normal);
    QCOMPARE(icons(root()).constFirst(), icon); // the same item
    QVERIFY(icon->property("source").toString().contains(colorSet(text).normal.name()));
}

void tst_LkButtons::borderFollowsItsData_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("pill") << QByteArray("LKPillButton { property QtObject buttonData: LKPillButtonData");
    QTest::newRow("round button") << QByteArray("LKRoundButton { property QtObject buttonData: LKRoundButtonData");
    QTest::newRow("icon button") << QByteArray("LKIconButton { property QtObject buttonData: LKIconButtonData");
}

// A border colour alone makes no border.
void tst_LkButtons::borderFollowsItsData()
{
    QFETCH(const QByteArray, button);
    QVERIFY(show(button + " }"));
    auto *buttonData = root()->property("buttonData").value<QObject *>();
    const auto *background = item(root(), "background");
    const QColor normal = colorSet(u"button-secondary-border"_s).normal;
    auto *token = buttonData->property("borderColorData").value<LKColorData *>();
    token->setToken(u"button-secondary-border"_s); // also over what the style has set
    buttonData->setProperty("border", true);
    QCOMPARE(borderWidth(background), 1);
    QCOMPARE(borderColor(background), normal);
    token->setToken(QString());
    QCOMPARE(borderWidth(background), 0);
    token->setToken(u"button-secondary-border"_s);
    QCOMPARE(borderWidth(background), 1);
    buttonData->setProperty("border", false);
    QCOMPARE(borderWidth(background), 0);
    root()->setEnabled(false); // another colour
    QCOMPARE(borderWidth(background), 0);
    buttonData->setProperty("border", true);
    QCOMPARE(borderWidth(background), 1);
    QCOMPARE(borderColor(background), colorSet(u"button-secondary-border"_s).disabled);
}

void tst_LkButtons::hoverOverride()
{
    QVERIFY(show("LKToolButton { iconName: 'list' }"));
    moveMouseAway();
    const WColorSet background = colorSet(u"button-ghost-background"_s);
    QTRY_COMPARE(color(item(root(), "background")), background.normal);
    root()->setProperty("hoverOverride", true);
    QCOMPARE(color(item(root(), "background")), background.hovered);
    QCOMPARE(root()->property("hovered").toBool(), false);
    moveMouseTo(root());
    QTRY_COMPARE(root()->property("hovered").toBool(), true);
    moveMouseAway();
    QTRY_COMPARE(root()->property("hovered").toBool(), false);
    QCOMPARE(color(item(root(), "background")), background.hovered);
    root()->setProperty("hoverOverride", false);
    QCOMPARE(color(item(root(), "background")), background.normal);
}

void tst_LkButtons::whatIsAbsentHasNoItem()
{
    QVERIFY(show("LKPillButton { }"));
    auto *content = item(root(), "contentItem");
    const auto count = [&] { return content->childItems().size(); };
    QCOMPARE(count(), 0);
    root()->setProperty("text", u"Join"_s);
    QCOMPARE(count(), 1);
    root()->setProperty("leftIcon", u"list"_s);
    root()->setProperty("rightIcon", u"grid"_s);
    QCOMPARE(count(), 3);
    root()->setProperty("leftIcon", QString());
    root()->setProperty("text", QString());
    QCOMPARE(count(), 1);
    QCOMPARE(root()->width(), 12 + 16 + 12.0);
    root()->setProperty("rightIcon", QString());
    QCOMPARE(count(), 0);
    QVERIFY(root()->findChildren<QQuickPaintedItem *>().isEmpty()); // no focus ring either
}

void tst_LkButtons::contentStandsInOrder_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<double>("width");
    QTest::newRow("left to right") << false << 0.0;
    QTest::newRow("mirrored") << true << 0.0;
    QTest::newRow("wide") << false << 201.0;
    QTest::newRow("wide, mirrored") << true << 201.0;
    QTest::newRow("a fraction wide, mirrored") << true << 200.5;
}

void tst_LkButtons::contentStandsInOrder()
{
    QFETCH(const bool, mirrored);
    QFETCH(const double, width);
    QVERIFY(show("LKPillButton { LayoutMirroring.enabled: mirror; property bool mirror; text: 'Join'; "
                 "leftIcon: 'list'; rightIcon: 'grid' }"));
    const auto find = [&](const QString &name) {
        for (QQuickItem *icon : icons(root())) {
            if (icon->property("source").toString().endsWith(name))
                return icon;
        }
        return static_cast<QQuickItem *>(nullptr);
    };
    root()->setProperty("mirror", mirrored);
    if (width > 0)
        root()->setWidth(width);
    const QQuickItem *first = find(mirrored ? u"grid"_s : u"list"_s);
    const QQuickItem *last = find(mirrored ? u"list"_s : u"grid"_s);
    const QQuickItem *text = texts(root()).constFirst();
    QTRY_COMPARE_LT(sceneX(first), sceneX(text));
    QTRY_COMPARE_LT(sceneX(text), sceneX(last));
    const auto end = [&] { return root()->width() - sceneX(last) - last->width(); };
    QTRY_COMPARE_LE(std::abs(sceneX(first) - end()), 1.0); // in the middle
    for (const QQuickItem *part : {first, text, last}) {
        QCOMPARE(sceneX(part), std::floor(sceneX(part)));
        QCOMPARE(part->mapToScene({}).y(), std::floor(part->mapToScene({}).y()));
    }
}

void tst_LkButtons::directionalIconsMirror_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<bool>("mirrors");
    QTest::newRow("arrow") << u"arrow-left-bold"_s << true;
    QTest::newRow("chevron") << u"chevron-right"_s << true;
    QTest::newRow("downward") << u"chevron-down-bold"_s << false;
    QTest::newRow("a thing") << u"microphone"_s << false;
}

void tst_LkButtons::directionalIconsMirror()
{
    QFETCH(const QString, icon);
    QFETCH(const bool, mirrors);
    QVERIFY(show("LKRoundButton { LayoutMirroring.enabled: mirror; property bool mirror }"));
    root()->setProperty("buttonIcon", icon);
    QTRY_COMPARE(icons(root()).constFirst()->property("mirror").toBool(), false);
    root()->setProperty("mirror", true);
    QTRY_COMPARE(icons(root()).constFirst()->property("mirror").toBool(), mirrors);
}

void tst_LkButtons::aLongTextIsElided_data()
{
    QTest::addColumn<QByteArray>("qml");
    const QByteArray text = "'Donaudampfschifffahrtsgesellschaft'";
    QTest::newRow("pill") << "LKPillButton { leftIcon: 'list'; rightIcon: 'grid'; text: " + text + "}";
    QTest::newRow("link") << "LKHyperlinkButton { text: " + text + "}";
    QTest::newRow("dual button") << "LKDualButton { enableResize: true; middleButtonIcon: 'list'; text: " + text + "}";
    QTest::newRow("badge button")
        << "LKBadgeButton { iconName: 'list'; badgeText: '1'; maxTextWidth: 1000; buttonText: " + text + "}";
}

void tst_LkButtons::aLongTextIsElided()
{
    QFETCH(const QByteArray, qml);
    QVERIFY(show("Item { width: 400; height: 300; " + qml.left(qml.indexOf('{') + 1) + "objectName: 'button'; "
                 + qml.mid(qml.indexOf('{') + 1) + "}"));
    auto *button = find(u"button"_s);
    const auto *text = texts(button).constFirst();
    QVERIFY(!text->property("truncated").toBool());
    button->setWidth(button->implicitWidth() - 40);
    QTRY_COMPARE(text->property("truncated").toBool(), true);
    QCOMPARE(text->property("textFormat").toInt(), 0); // plain
    for (const QQuickItem *part : icons(button) + texts(button)) {
        if (part->isVisible())
            QTRY_COMPARE_LE(part->mapToItem(button, QPointF(part->width(), 0)).x(), button->width());
    }
}

void tst_LkButtons::sizeFollowsTheFontScale()
{
    QVERIFY(show("LKPillButton { text: 'Teilnehmen'; buttonSize: LKButtonSize.XS }"));
    const double width = root()->width();
    application()->setFontScaleFactor(1.5);
    QCOMPARE_GT(root()->width(), width + 10);
    QTRY_COMPARE(texts(root()).constFirst()->property("truncated").toBool(), false);
    QCOMPARE_GE(root()->height(), texts(root()).constFirst()->implicitHeight());
    QCOMPARE(item(root(), "background")->property("radius").toReal(), root()->height() / 2);
}

void tst_LkButtons::contentFollowsItsData()
{
    QVERIFY(show("LKPillButton { text: 'Join'; leftIcon: 'list' }"));
    auto *pill = data<LKPillButtonData>(root());
    const double width = root()->width();
    pill->setIconSize({24, 24});
    QCOMPARE(icons(root()).constFirst()->size(), QSizeF(24, 24));
    QCOMPARE(root()->width(), width + 8);
    pill->setSpacing(10);
    QCOMPARE(root()->width(), width + 8 + 4);
    pill->setFont(WFont(WFont::Display, false));
    QCOMPARE(texts(root()).constFirst()->property("font").value<QFont>(), QFont(WFont(WFont::Display, false)));
    QCOMPARE_GT(root()->width(), width + 8 + 4);
}

void tst_LkButtons::anIconInNoColourIsNotAskedFor()
{
    QVERIFY(show("LKRoundButton { buttonIcon: 'list'; buttonStyle: LKButtonStyle.None }"));
    QCOMPARE(icons(root()).constFirst()->property("source").toUrl(), QUrl());
    root()->setProperty("buttonStyle", int(LKButtonStyle::Ghost));
    QCOMPARE(icons(root()).constFirst()->property("source").toUrl().toString(),
             iconSource(colorSet(u"button-ghost-text"_s).normal, u"list"_s));
}

void tst_LkButtons::focusRing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<double>("radius");
    QTest::newRow("pill") << QByteArray("LKPillButton { text: 'Join'") << 16.0;
    QTest::newRow("round button") << QByteArray("LKRoundButton { buttonIcon: 'list'") << 20.0;
    QTest::newRow("tool button") << QByteArray("LKToolButton { iconName: 'list'") << 4.0;
    QTest::newRow("without a background") << QByteArray("LKButtonBase { width: 40; height: 32") << 0.0;
}

void tst_LkButtons::focusRing()
{
    QFETCH(const QByteArray, button);
    QFETCH(const double, radius);
    QVERIFY(show("Item { width: 200; height: 200; " + button + "; objectName: 'button'; x: 20; y: 20 } }"));
    auto *target = find(u"button"_s);
    const auto ringRadius = [&] {
        for (const QObject *child : target->children()) {
            if (child->inherits("FocusRing"))
                return child->property("radius").toDouble();
        }
        return -1.0;
    };
    press(Qt::Key_Tab);
    QCOMPARE(rings(target).size(), 1);
    QCOMPARE(rings(target).constFirst()->size(), target->size() + QSizeF(8, 8));
    QCOMPARE(ringRadius(), radius);
    if (target->property("buttonSize").isValid()) {
        target->setProperty("buttonSize", int(LKButtonSize::XS));
        QCOMPARE(ringRadius(), target->height() / 2);
    }
    click(target);
    QCOMPARE(rings(target).size(), 0);
    target->setFocus(false);
    target->forceActiveFocus(Qt::OtherFocusReason);
    QCOMPARE(rings(target).size(), 0); // not by the keyboard
}

void tst_LkButtons::linkStyles_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("state");
    for (const char *state : States)
        QTest::addRow("accent, %s", state) << u"Accent"_s << QString::fromLatin1(state);
    QTest::newRow("destructive") << u"Destructive"_s << u"normal"_s;
    QTest::newRow("share") << u"Share"_s << u"normal"_s;
}

void tst_LkButtons::linkStyles()
{
    QFETCH(const QString, style);
    QFETCH(const QString, state);
    QVERIFY(show("Item { width: 400; height: 300; LKHyperlinkButton { objectName: 'button'; x: 20; y: 20; "
                 "text: '<b>Learn</b> more'; style: LKHyperlinkButton."
                 + style.toLatin1() + " } }"));
    auto *link = find(u"button"_s);
    enterState(link, state);
    const auto *text = texts(link).constFirst();
    QTRY_COMPARE(color(text), colorSet(u"hyperlink-%1-text"_s.arg(style.toLower())).getColor(state));
    QVERIFY(text->property("font").value<QFont>().underline());
    QCOMPARE(text->property("textFormat").toInt(), 0); // plain
    if (state == "pressed"_L1)
        letGo(Qt::Key_Space);
}

void tst_LkButtons::linkTakesItsColourFromItsControl()
{
    QVERIFY(show("Column { WButton { id: row; objectName: 'row' } "
                 "LKHyperlinkButton { objectName: 'link'; text: 'Learn more'; _control: row } }"));
    const WColorSet colors = colorSet(u"hyperlink-accent-text"_s);
    const auto *text = texts(find(u"link"_s)).constFirst();
    QCOMPARE(color(text), colors.normal);
    find(u"row"_s)->setEnabled(false);
    QCOMPARE(color(text), colors.disabled);
}

void tst_LkButtons::linkChangesTheCursor_data()
{
    QTest::addColumn<bool>("changeCursor");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::newRow("hand") << true << Qt::PointingHandCursor;
    QTest::newRow("arrow") << false << Qt::ArrowCursor;
}

void tst_LkButtons::linkChangesTheCursor()
{
    QFETCH(const bool, changeCursor);
    QFETCH(const Qt::CursorShape, shape);
    QVERIFY(show("Item { width: 200; height: 100; LKHyperlinkButton { objectName: 'link'; x: 50; y: 50; "
                 "text: 'Learn more' } }"));
    auto *link = find(u"link"_s);
    link->setProperty("changeCursor", changeCursor);
    moveMouseAway();
    moveMouseTo(link);
    QTRY_COMPARE(link->property("hovered").toBool(), true);
    QTRY_COMPARE(window()->cursor().shape(), shape);
    moveMouseAway();
    QTRY_COMPARE(window()->cursor().shape(), Qt::ArrowCursor);
}

void tst_LkButtons::dualButtonsPress_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("isLeft");
    for (const QByteArray type : {"LKDualButton", "LKDualIconButton"}) {
        QTest::newRow(type + ", left") << type << true;
        QTest::newRow(type + ", right") << type << false;
    }
}

void tst_LkButtons::dualButtonsPress()
{
    QFETCH(const QByteArray, type);
    QFETCH(const bool, isLeft);
    QVERIFY(
        show("Item { width: 200; height: 100; " + type
             + " { objectName: 'dual'; leftButtonIcon: 'undo'; rightButtonIcon: 'redo'; "
               "leftAccessibleName: 'Undo'; rightAccessibleName: 'Redo'; property int onLeft; property int onRight; "
               "leftButton.onClicked: ++onLeft; rightButton.onClicked: ++onRight } }"));
    auto *dual = find(u"dual"_s);
    auto *button = item(dual, isLeft ? "leftButton" : "rightButton");
    const char *wanted = isLeft ? "onLeft" : "onRight";
    const char *other = isLeft ? "onRight" : "onLeft";
    click(button);
    QCOMPARE(dual->property(wanted).toInt(), 1);
    press(Qt::Key_Tab);
    if (!isLeft)
        press(Qt::Key_Tab);
    QVERIFY(button->hasActiveFocus());
    press(Qt::Key_Return);
    QCOMPARE(dual->property(wanted).toInt(), 2);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(button);
    QCOMPARE(interface->role(), QAccessible::Button);
    QCOMPARE(interface->text(QAccessible::Name), isLeft ? u"Undo"_s : u"Redo"_s);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(dual->property(wanted).toInt(), 3);
    QCOMPARE(dual->property(other).toInt(), 0);
    button->setEnabled(false);
    click(button);
    dual->setEnabled(false);
    click(button);
    QCOMPARE(dual->property(wanted).toInt(), 3);
}

void tst_LkButtons::dualButtonsColours_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("isOverlay");
    for (const QByteArray type : {"LKDualButton", "LKDualIconButton"}) {
        QTest::newRow(type + ", standard") << type << false;
        QTest::newRow(type + ", overlay") << type << true;
    }
}

void tst_LkButtons::dualButtonsColours()
{
    QFETCH(const QByteArray, type);
    QFETCH(const bool, isOverlay);
    QVERIFY(show(type + " { leftButtonIcon: 'undo'; rightButtonIcon: 'redo' }"));
    if (type == "LKDualButton")
        root()->setProperty("text", u"Step"_s);
    root()->setProperty("isOverlay", isOverlay);
    moveMouseAway();
    const QString tokens = isOverlay ? u"dualbutton-overlay"_s : u"dualbutton-standard"_s;
    for (const QString &theme : {u"default"_s, u"dark"_s}) {
        application()->setThemeMode(theme);
        const auto *frame = root()->childItems().constFirst();
        QCOMPARE(color(frame), colorSet(tokens + "-background"_L1).normal);
        QCOMPARE(borderColor(frame), colorSet(tokens + "-border"_L1).normal);
        const WColorSet background = colorSet(tokens + "-button-background"_L1);
        const WColorSet text = colorSet(tokens + "-button-text"_L1);
        auto *left = item(root(), "leftButton");
        QTRY_COMPARE(color(item(left, "background")), background.normal);
        QCOMPARE(icons(left).constFirst()->property("source").toUrl().toString(), iconSource(text.normal, u"undo"_s));
        for (const auto *label : texts(root()))
            QCOMPARE(color(label), text.normal);
        moveMouseTo(left);
        QTRY_COMPARE(color(item(left, "background")), background.hovered);
        QCOMPARE(color(item(item(root(), "rightButton"), "background")), background.normal);
        moveMouseAway();
    }
    root()->setEnabled(false);
    QCOMPARE(color(item(item(root(), "rightButton"), "background")),
             colorSet(tokens + "-button-background"_L1).disabled);
}

void tst_LkButtons::dualButtonsOrder_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("mirrored");
    for (const QByteArray type : {"LKDualButton", "LKDualIconButton", "LKToggleButton"}) {
        QTest::newRow(type) << type << false;
        QTest::newRow(type + ", mirrored") << type << true;
    }
}

void tst_LkButtons::dualButtonsOrder()
{
    QFETCH(const QByteArray, type);
    QFETCH(const bool, mirrored);
    QVERIFY(show(type
                 + " { property bool mirror; LayoutMirroring.enabled: mirror; "
                   "LayoutMirroring.childrenInherit: true; leftButtonIcon: 'undo'; rightButtonIcon: 'redo' }"));
    root()->setProperty("mirror", mirrored);
    const auto *first = item(root(), mirrored ? "rightButton" : "leftButton");
    const auto *second = item(root(), mirrored ? "leftButton" : "rightButton");
    QTRY_COMPARE(sceneX(first), 2.0);
    QTRY_COMPARE(sceneX(second) + second->width(), root()->width() - 2);
    QCOMPARE_GE(sceneX(second), sceneX(first) + first->width() + 2);
    QCOMPARE(root()->height(), 32.0);
    QCOMPARE(first->mapToItem(root(), QPointF()).y(), 2.0);
    QCOMPARE(first->height(), 28.0);
}

void tst_LkButtons::arrowsGoToTheOtherButton_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<int>("forth");
    QTest::addColumn<int>("back");
    const auto row = [](const char *name, const QByteArray &qml, Qt::Key forth, Qt::Key back) {
        QTest::newRow(name) << qml << int(forth) << int(back);
    };
    const QByteArray mirrored = " { LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true }";
    row("LKDualButton", "LKDualButton { text: '1' }", Qt::Key_Right, Qt::Key_Left);
    row("LKDualButton, mirrored", "LKDualButton" + mirrored, Qt::Key_Left, Qt::Key_Right);
    row("LKDualIconButton", "LKDualIconButton { }", Qt::Key_Right, Qt::Key_Left);
    row("LKDualIconButton, mirrored", "LKDualIconButton" + mirrored, Qt::Key_Left, Qt::Key_Right);
    row("LKDualIconButton, vertical", "LKDualIconButton { horizontal: false }", Qt::Key_Down, Qt::Key_Up);
    row("LKToggleButton", "LKToggleButton { }", Qt::Key_Right, Qt::Key_Left);
    row("LKToggleButton, mirrored", "LKToggleButton" + mirrored, Qt::Key_Left, Qt::Key_Right);
}

void tst_LkButtons::arrowsGoToTheOtherButton()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const int, forth);
    QFETCH(const int, back);
    QVERIFY(show(qml));
    auto *left = item(root(), "leftButton");
    auto *right = item(root(), "rightButton");
    press(Qt::Key_Tab);
    QVERIFY(left->hasActiveFocus());
    press(Qt::Key(back));
    QVERIFY(left->hasActiveFocus());
    press(Qt::Key(forth));
    QVERIFY(right->hasActiveFocus());
    QCOMPARE(rings(right).size(), 1);
    QCOMPARE(rings(left).size(), 0);
    press(Qt::Key(forth));
    QVERIFY(right->hasActiveFocus());
    press(Qt::Key(back));
    QVERIFY(left->hasActiveFocus());
    press(Qt::Key_Tab);
    QVERIFY(right->hasActiveFocus());
}

void tst_LkButtons::dualButtonWidth_data()
{
    QTest::addColumn<bool>("enableResize");
    QTest::addColumn<double>("width");
    QTest::newRow("fixed, narrow") << false << 130.0;
    QTest::newRow("fixed, wide") << false << 300.0;
    QTest::newRow("resized, narrow") << true << 130.0;
    QTest::newRow("resized, wide") << true << 300.0;
}

void tst_LkButtons::dualButtonWidth()
{
    QFETCH(const bool, enableResize);
    QFETCH(const double, width);
    QVERIFY(show("Item { width: 400; height: 100; LKDualButton { objectName: 'dual'; text: 'Wednesday'; "
                 "middleButtonIcon: 'calendar' } }"));
    auto *dual = find(u"dual"_s);
    const auto *frame = dual->childItems().constFirst();
    const double natural = dual->implicitWidth();
    dual->setProperty("enableResize", enableResize);
    QCOMPARE(dual->implicitWidth(), natural);
    dual->setWidth(width);
    QTRY_COMPARE(frame->width(), enableResize ? width : natural);
    const auto *text = texts(dual).constFirst();
    QTRY_COMPARE(text->property("truncated").toBool(), enableResize && width < natural);
    const auto *right = item(dual, "rightButton");
    QCOMPARE(right->mapToItem(frame, QPointF()).x(), frame->width() - 2 - right->width());
    QCOMPARE_LT(text->mapToItem(dual, QPointF(text->width(), 0)).x(), right->mapToItem(dual, QPointF()).x());
}

void tst_LkButtons::dualButtonMiddle()
{
    QVERIFY(show("LKDualButton { }"));
    const double empty = root()->implicitWidth();
    QCOMPARE(empty, 3 * 2 + 2 * 28.0);
    root()->setProperty("middleButtonIcon", u"calendar"_s);
    QTRY_COMPARE(root()->implicitWidth(), 2 * 2 + 2 * 28 + 8 + 16 + 8.0);
    root()->setProperty("text", u"<b>Today</b>"_s);
    QTRY_COMPARE_GT(root()->implicitWidth(), empty + 60);
    const auto *text = texts(root()).constFirst();
    QVERIFY(!text->property("truncated").toBool());
    QCOMPARE(text->property("textFormat").toInt(), 0); // plain
    QCOMPARE(QAccessible::queryAccessibleInterface(const_cast<QQuickItem *>(text))->text(QAccessible::Name),
             u"<b>Today</b>"_s);
    const double width = root()->implicitWidth();
    application()->setFontScaleFactor(1.5);
    QTRY_COMPARE_GT(root()->implicitWidth(), width + 10);
    QVERIFY(!text->property("truncated").toBool());
}

void tst_LkButtons::dualIconButtonsStandOneAboveTheOther()
{
    QVERIFY(show("LKDualIconButton { leftButtonIcon: 'plus'; rightButtonIcon: 'minus' }"));
    const QSizeF size(root()->implicitWidth(), root()->implicitHeight());
    root()->setProperty("horizontal", false);
    QTRY_COMPARE(QSizeF(root()->implicitWidth(), root()->implicitHeight()), size.transposed());
    const auto *upper = item(root(), "leftButton");
    const auto *lower = item(root(), "rightButton");
    QTRY_COMPARE(upper->mapToItem(root(), QPointF()), QPointF(2, 2));
    QTRY_COMPARE(lower->mapToItem(root(), QPointF(0, lower->height())), QPointF(2, root()->height() - 2));
    QCOMPARE(root()->childItems().constFirst()->property("radius").toReal(), 16.0);
}

void tst_LkButtons::oneHalfIsOn_data()
{
    QTest::addColumn<QString>("by");
    QTest::newRow("mouse") << u"mouse"_s;
    QTest::newRow("space") << u"space"_s;
    QTest::newRow("return") << u"return"_s;
    QTest::newRow("press action") << u"press"_s;
    QTest::newRow("toggle action") << u"toggle"_s;
}

void tst_LkButtons::oneHalfIsOn()
{
    QFETCH(const QString, by);
    const ScreenReader reader;
    QVERIFY(show("LKToggleButton { leftAccessibleName: 'List'; rightAccessibleName: 'Grid' }"));
    auto *left = item(root(), "leftButton");
    auto *right = item(root(), "rightButton");
    const auto choose = [&](QQuickItem *half) {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(half);
        if (by == "mouse"_L1) {
            click(half);
        } else if (by == "press"_L1) {
            interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        } else if (by == "toggle"_L1) {
            interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        } else {
            half->forceActiveFocus(Qt::TabFocusReason);
            press(by == "space"_L1 ? Qt::Key_Space : Qt::Key_Return);
        }
    };
    const auto isOn = [](QQuickItem *half) {
        const bool checked = half->property("checked").toBool();
        return checked && QAccessible::queryAccessibleInterface(half)->state().checked;
    };
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(right);
    QCOMPARE(interface->role(), QAccessible::RadioButton);
    QCOMPARE(interface->text(QAccessible::Name), u"Grid"_s);
    QVERIFY(isOn(left));
    QVERIFY(!isOn(right));
    QSignalSpy toggledLeft(left, SIGNAL(toggled()));
    QSignalSpy toggledRight(right, SIGNAL(toggled()));
    choose(right);
    QVERIFY(!isOn(left));
    QVERIFY(isOn(right));
    QCOMPARE(toggledRight.count(), 1);
    choose(right); // stays on
    QVERIFY(isOn(right));
    QCOMPARE(toggledRight.count(), 1);
    choose(left);
    QVERIFY(isOn(left));
    QVERIFY(!isOn(right));
    QCOMPARE(toggledLeft.count(), 1);
    root()->setEnabled(false);
    choose(right);
    QVERIFY(isOn(left));
}

void tst_LkButtons::theHostChoosesTheHalf()
{
    QVERIFY(show("LKToggleButton { rightButton.checked: true }"));
    QCOMPARE(item(root(), "leftButton")->property("checked").toBool(), false);
    QCOMPARE(item(root(), "rightButton")->property("checked").toBool(), true);
}

void tst_LkButtons::halvesShowWhichIsOn()
{
    QVERIFY(show("LKToggleButton { leftButtonIcon: 'list'; rightButtonIcon: 'grid' }"));
    moveMouseAway();
    for (const QString &theme : {u"default"_s, u"dark"_s}) {
        application()->setThemeMode(theme);
        const WColorSet on = colorSet(u"toggleButton-active-background"_s);
        const WColorSet off = colorSet(u"toggleButton-inactive-background"_s);
        for (const bool isLeftOn : {false, true}) {
            auto *active = item(root(), isLeftOn ? "leftButton" : "rightButton");
            auto *inactive = item(root(), isLeftOn ? "rightButton" : "leftButton");
            active->setProperty("checked", true);
            QTRY_COMPARE(color(item(active, "background")), on.checked);
            QCOMPARE(borderColor(item(active, "background")), colorSet(u"toggleButton-active-border"_s).checked);
            QCOMPARE(borderWidth(item(active, "background")), 1);
            QCOMPARE(color(item(inactive, "background")), off.normal);
            QCOMPARE(borderColor(item(inactive, "background")).alpha(), 0);
            QCOMPARE(icons(inactive).constFirst()->property("source").toUrl().toString(),
                     iconSource(colorSet(u"toggleButton-inactive-text"_s).normal, isLeftOn ? u"grid"_s : u"list"_s));
        }
    }
    const auto *frame = root()->childItems().constFirst();
    QCOMPARE(borderColor(frame), colorSet(u"toggleButton-inactive-border"_s).normal);
    QCOMPARE(color(frame), colorSet(u"toggleButton-inactive-background"_s).normal);
}

void tst_LkButtons::badgeButtonTriggers()
{
    QVERIFY(show("LKBadgeButton { iconName: 'list'; buttonText: 'Inbox'; badgeText: '5' }"));
    QSignalSpy triggered(root(), SIGNAL(triggered()));
    click(root());
    QCOMPARE(triggered.count(), 1);
    root()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(triggered.count(), 2);
    root()->setEnabled(false);
    click(root());
    QCOMPARE(triggered.count(), 2);
}

void tst_LkButtons::badgeIsThereWhileVisible()
{
    QVERIFY(show("LKBadgeButton { iconName: 'list'; buttonText: 'Inbox' }"));
    const auto badge = [&]() -> QQuickItem * {
        for (QQuickItem *rectangle : itemsOf(root(), "QQuickRectangle")) {
            if (rectangle->metaObject()->indexOfProperty("badgeType") >= 0)
                return rectangle;
        }
        return nullptr;
    };
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(root());
    const double width = root()->implicitWidth();
    QVERIFY(!badge());
    QCOMPARE(interface->text(QAccessible::Description), QString());
    root()->setProperty("badgeText", u"120"_s);
    QVERIFY(badge());
    QCOMPARE(badge()->property("labelText").toString(), u"99+"_s);
    QCOMPARE(interface->text(QAccessible::Name), u"Inbox"_s);
    QCOMPARE(interface->text(QAccessible::Description), u"120"_s);
    QTRY_COMPARE_GT(root()->implicitWidth(), width + 16);
    root()->setProperty("badgeVisible", false);
    QVERIFY(!badge());
    QTRY_COMPARE(root()->implicitWidth(), width);
    QCOMPARE(interface->text(QAccessible::Description), QString());
    root()->setProperty("badgeText", QString());
    root()->setProperty("badgeVisible", true); // a dot
    QCOMPARE(badge()->implicitWidth(), 8.0);
}

void tst_LkButtons::badgeButtonElides_data()
{
    QTest::addColumn<int>("maxTextWidth");
    QTest::addColumn<bool>("elided");
    QTest::newRow("wide enough") << 1000 << false;
    QTest::newRow("too narrow") << 60 << true;
}

void tst_LkButtons::badgeButtonElides()
{
    QFETCH(const int, maxTextWidth);
    QFETCH(const bool, elided);
    QVERIFY(show("LKBadgeButton { buttonText: '<b>Benachrichtigungen</b>'; badgeText: '5' }"));
    root()->setProperty("maxTextWidth", maxTextWidth);
    const auto *text = texts(root()).constFirst();
    QTRY_COMPARE(text->property("truncated").toBool(), elided);
    QCOMPARE(text->width(), elided ? double(maxTextWidth) : std::ceil(text->implicitWidth()));
    QCOMPARE(text->property("textFormat").toInt(), 0); // plain
}

void tst_LkButtons::badgeButtonOrder_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("mirrored") << true;
}

void tst_LkButtons::badgeButtonOrder()
{
    QFETCH(const bool, mirrored);
    QVERIFY(show("LKBadgeButton { property bool mirror; LayoutMirroring.enabled: mirror; "
                 "LayoutMirroring.childrenInherit: true; iconName: 'list'; buttonText: 'Inbox'; badgeText: '5' }"));
    root()->setProperty("mirror", mirrored);
    const auto textNamed = [&](const QString &name) {
        const auto all = texts(root());
        return *std::ranges::find_if(all, [&](const QQuickItem *text) { return text->property("text") == name; });
    };
    const QQuickItem *icon = icons(root()).constFirst();
    const QQuickItem *text = textNamed(u"Inbox"_s);
    const QQuickItem *badge = textNamed(u"5"_s);
    QTRY_COMPARE(sceneX(icon) < sceneX(text), !mirrored);
    QTRY_COMPARE(sceneX(text) < sceneX(badge), !mirrored);
    QCOMPARE(text->property("effectiveHorizontalAlignment").toInt(), int(mirrored ? Qt::AlignRight : Qt::AlignLeft));
    const QColor expected = colorSet(u"button-secondary-text"_s).normal;
    moveMouseAway();
    QTRY_COMPARE(color(text), expected);
    QCOMPARE(color(root(), "iconColor"), expected);
}

LUMAKIT_TEST_MAIN(tst_LkButtons)
#include "tst_lk_buttons.moc"
