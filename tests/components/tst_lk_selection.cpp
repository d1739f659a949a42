#include <ComponentTest.h>

#include <QAccessible>
#include <QQmlProperty>

using namespace Qt::StringLiterals;

class tst_LkSelection : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void checkBoxGoesThroughItsStates_data();
    void checkBoxGoesThroughItsStates();
    void wrapping_data();
    void wrapping();
    void accessibility_data();
    void accessibility();

    void radioButtonsExcludeEachOther();
    void heldKeyClicksARadioButtonOnce_data();
    void heldKeyClicksARadioButtonOnce();
    void arrowsChooseARadioButton_data();
    void arrowsChooseARadioButton();
    void radioButtonsAreOneTabStop_data();
    void radioButtonsAreOneTabStop();
    void radioButtonsOfAGroup();
    void radioButtonColours_data();
    void radioButtonColours();
    void radioButtonShowsADot();
    void radioButtonText_data();
    void radioButtonText();
    void radioButtonPadding_data();
    void radioButtonPadding();

    void comboBoxFindsWhatIsTyped_data();
    void comboBoxFindsWhatIsTyped();
    void comboBoxKeepsItsBinding();
    void comboBoxScrolls_data();
    void comboBoxScrolls();
    void comboBoxHasATick();
    void comboBoxByMouse();

    void sliderByKeyboard_data();
    void sliderByKeyboard();
    void sliderKeepsItsBinding();
    void sliderByWheel();
    void sliderByMouse_data();
    void sliderByMouse();
    void sliderFromRightToLeft_data();
    void sliderFromRightToLeft();
    void sliderGeometry();
    void sliderShowsItsValue_data();
    void sliderShowsItsValue();
    void sliderColours_data();
    void sliderColours();
    void disabledSliderStandsStill();

private:
    static QColor color(const QObject *object, const char *property)
    {
        return object->property(property).value<QColor>();
    }

    static QQuickItem *item(const QObject *object, const char *property)
    {
        return object->property(property).value<QQuickItem *>();
    }

    static QColor token(const QString &name, const QString &state = u"normal"_s)
    {
        return application()->getColorSet(name).getColor(state);
    }

    static QList<QQuickItem *> itemsWith(const QQuickItem *parent, const char *property)
    {
        QList<QQuickItem *> items;
        for (QQuickItem *child : parent->childItems()) {
            if (child->metaObject()->indexOfProperty(property) >= 0)
                items += child;
            items += itemsWith(child, property);
        }
        return items;
    }

    QString focusName() const { return window()->activeFocusItem()->objectName(); }

    QString checkedNames(const QStringList &names) const
    {
        QString checked;
        for (const QString &name : names) {
            if (find(name)->property("checked").toBool())
                checked += name;
        }
        return checked;
    }

    QObject *popup() const { return root()->property("popup").value<QObject *>(); }
    QQuickItem *list() const { return item(popup(), "contentItem"); }

    /// The text of the tooltip that is up; empty without one.
    QString toolTip() const
    {
        for (const QObject *child : root()->findChildren<QObject *>()) {
            if (child->inherits("QQuickToolTip") && child->property("visible").toBool())
                return child->property("text").toString();
        }
        return {};
    }
};

void tst_LkSelection::checkBoxGoesThroughItsStates_data()
{
    QTest::addColumn<bool>("tristate");
    QTest::addColumn<int>("key");
    QTest::addColumn<QList<int>>("states");
    const QList<int> two = {Qt::Checked, Qt::Unchecked, Qt::Checked};
    const QList<int> three = {Qt::PartiallyChecked, Qt::Checked, Qt::Unchecked};
    QTest::newRow("two, by mouse") << false << 0 << two;
    QTest::newRow("two, by Space") << false << int(Qt::Key_Space) << two;
    QTest::newRow("two, by Return") << false << int(Qt::Key_Return) << two;
    QTest::newRow("three, by mouse") << true << 0 << three;
    QTest::newRow("three, by Space") << true << int(Qt::Key_Space) << three;
    QTest::newRow("three, by Enter") << true << int(Qt::Key_Enter) << three;
}

void tst_LkSelection::checkBoxGoesThroughItsStates()
{
    QFETCH(const bool, tristate);
    QFETCH(const int, key);
    QFETCH(const QList<int>, states);
    QVERIFY(show("LKCheckBox { text: 'Check' }"));
    root()->setProperty("tristate", tristate);
    QSignalSpy clicked(root(), SIGNAL(clicked()));
    press(Qt::Key_Tab);
    const auto act = [&] {
        if (key)
            press(Qt::Key(key));
        else
            click(root());
    };
    for (const int state : states) {
        act();
        QCOMPARE(root()->property("checkState").toInt(), state);
    }
    QCOMPARE(clicked.count(), states.size());
    root()->setEnabled(false);
    act();
    QCOMPARE(clicked.count(), states.size());
}

void tst_LkSelection::wrapping_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<bool>("wraps");
    const QByteArray text = "text: 'Benachrichtigungen auch bei gesperrtem Bildschirm anzeigen'; ";
    for (const QByteArray type : {"LKCheckBox", "LKRadioButton"}) {
        QTest::newRow(type) << type + " { " + text + "}" << true;
        QTest::newRow(type + " in one line") << type + " { " + text + "autoWrapMode: Text.NoWrap }" << false;
    }
}

void tst_LkSelection::wrapping()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const bool, wraps);
    QVERIFY(show(qml));
    const auto *text = item(root(), "contentItem");
    const double height = root()->implicitHeight();
    QCOMPARE(text->property("lineCount").toInt(), 1);
    QCOMPARE(text->property("truncated").toBool(), false);
    root()->setWidth(200);
    QTRY_COMPARE(text->property("lineCount").toInt() > 1, wraps);
    QTRY_COMPARE(text->property("truncated").toBool(), !wraps);
    QTRY_COMPARE(root()->implicitHeight() > height, wraps);
}

void tst_LkSelection::accessibility_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *name, const QByteArray &qml, QAccessible::Role role, const QString &text) {
        QTest::newRow(name) << qml << role << text;
    };
    row("check box", "LKCheckBox { text: 'Check' }", QAccessible::CheckBox, u"Check"_s);
    row("check box with a name", "LKCheckBox { text: 'Check'; accessibleText: 'More' }", QAccessible::CheckBox,
        u"More"_s);
    row("check box without a text", "LKCheckBox { tooltip: 'Tip' }", QAccessible::CheckBox, u"Tip"_s);
    row("radio button", "LKRadioButton { text: 'Choice' }", QAccessible::RadioButton, u"Choice"_s);
    row("radio button with a name", "LKRadioButton { text: 'Choice'; accessibleText: 'More' }",
        QAccessible::RadioButton, u"More"_s);
    row("radio button without a text", "LKRadioButton { tooltip: 'Tip' }", QAccessible::RadioButton, u"Tip"_s);
    row("combo box", "LKComboBox { model: ['One', 'Two']; accessibleText: 'Camera' }", QAccessible::ComboBox,
        u"Camera"_s);
    row("slider", "LKSlider { accessibleText: 'Volume' }", QAccessible::Slider, u"Volume"_s);
}

void tst_LkSelection::accessibility()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QAccessible::Role, role);
    QFETCH(const QString, name);
    QVERIFY(show(qml));
    QAccessible::setActive(true); // makes the controls tell their state
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(root());
    QVERIFY(interface);
    QCOMPARE(interface->role(), role);
    QCOMPARE(interface->text(QAccessible::Name), name);
    if (role == QAccessible::CheckBox || role == QAccessible::RadioButton) {
        QVERIFY(interface->state().checkable);
        QVERIFY(!interface->state().checked);
        interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(root()->property("checked").toBool(), true);
        QAccessible::setActive(true);
        QVERIFY(interface->state().checked);
    } else if (role == QAccessible::ComboBox) {
        interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(popup()->property("opened").toBool(), true);
    } else {
        interface->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
        QCOMPARE(root()->property("value").toReal(), 0.01);
        QCOMPARE(interface->valueInterface()->maximumValue().toReal(), 1.0);
    }
}

namespace {
const QByteArray Choices = "Column { property bool rtl; LayoutMirroring.enabled: rtl; LayoutMirroring.childrenInherit: "
                           "true; WButton { objectName: 'before'; text: 'Before' }"
                           "LKRadioButton { objectName: 'a'; text: 'A' }"
                           "LKRadioButton { objectName: 'b'; text: 'B' }"
                           "LKRadioButton { objectName: 'off'; text: 'Off'; enabled: false }"
                           "LKRadioButton { objectName: 'c'; text: 'C' }"
                           "WButton { objectName: 'after'; text: 'After' } }";
}

void tst_LkSelection::radioButtonsExcludeEachOther()
{
    QVERIFY(show(Choices));
    const QStringList names = {u"a"_s, u"b"_s, u"c"_s};
    QSignalSpy toggledA(find(u"a"_s), SIGNAL(toggled()));
    QSignalSpy clickedA(find(u"a"_s), SIGNAL(clicked()));
    click(find(u"a"_s));
    QCOMPARE(checkedNames(names), u"a"_s);
    click(find(u"c"_s));
    QCOMPARE(checkedNames(names), u"c"_s);
    click(find(u"off"_s));
    QCOMPARE(checkedNames(names), u"c"_s);
    click(find(u"a"_s));
    click(find(u"a"_s)); // stays chosen
    QCOMPARE(checkedNames(names), u"a"_s);
    QCOMPARE(toggledA.count(), 2);
    QCOMPARE(clickedA.count(), 3);
}

void tst_LkSelection::heldKeyClicksARadioButtonOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_LkSelection::heldKeyClicksARadioButtonOnce()
{
    QFETCH(const int, key);
    QVERIFY(show(Choices));
    auto *button = find(u"a"_s);
    QSignalSpy clicked(button, SIGNAL(clicked()));
    button->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyPress(window(), Qt::Key(key));
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeated(type, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(window(), &repeated);
    }
    QTest::keyRelease(window(), Qt::Key(key));
    QCOMPARE(clicked.count(), 1);
    QVERIFY(button->property("checked").toBool());
}

void tst_LkSelection::arrowsChooseARadioButton_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<QString>("chosen"); // by one press, two and three
    QTest::newRow("down") << int(Qt::Key_Down) << false << u"bca"_s;
    QTest::newRow("right") << int(Qt::Key_Right) << false << u"bca"_s;
    QTest::newRow("up") << int(Qt::Key_Up) << false << u"cba"_s;
    QTest::newRow("left") << int(Qt::Key_Left) << false << u"cba"_s;
    QTest::newRow("right, mirrored") << int(Qt::Key_Right) << true << u"cba"_s;
    QTest::newRow("left, mirrored") << int(Qt::Key_Left) << true << u"bca"_s;
    QTest::newRow("down, mirrored") << int(Qt::Key_Down) << true << u"bca"_s;
}

void tst_LkSelection::arrowsChooseARadioButton()
{
    QFETCH(const int, key);
    QFETCH(const bool, mirrored);
    QFETCH(const QString, chosen);
    QVERIFY(show(Choices));
    root()->setProperty("rtl", mirrored);
    click(find(u"a"_s));
    QSignalSpy toggled(find(u"b"_s), SIGNAL(toggled()));
    for (const QChar name : chosen) {
        press(Qt::Key(key));
        QCOMPARE(checkedNames({u"a"_s, u"b"_s, u"c"_s}), QString(name));
        QCOMPARE(focusName(), QString(name));
    }
    QCOMPARE(toggled.count(), 1);
}

void tst_LkSelection::radioButtonsAreOneTabStop_data()
{
    QTest::addColumn<QString>("checked");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QStringList>("stops");
    QTest::newRow("forwards to the chosen one")
        << u"b"_s << int(Qt::Key_Tab) << u"before"_s << QStringList{u"b"_s, u"after"_s};
    QTest::newRow("backwards to the chosen one")
        << u"b"_s << int(Qt::Key_Backtab) << u"after"_s << QStringList{u"b"_s, u"before"_s};
    QTest::newRow("forwards, none chosen")
        << QString() << int(Qt::Key_Tab) << u"before"_s << QStringList{u"a"_s, u"after"_s};
    QTest::newRow("backwards, none chosen")
        << QString() << int(Qt::Key_Backtab) << u"after"_s << QStringList{u"c"_s, u"before"_s};
}

void tst_LkSelection::radioButtonsAreOneTabStop()
{
    QFETCH(const QString, checked);
    QFETCH(const int, key);
    QFETCH(const QString, start);
    QFETCH(const QStringList, stops);
    QVERIFY(show(Choices));
    if (!checked.isEmpty())
        find(checked)->setProperty("checked", true);
    find(start)->forceActiveFocus(Qt::TabFocusReason);
    for (const QString &stop : stops) {
        press(Qt::Key(key));
        QCOMPARE(focusName(), stop);
    }
    QCOMPARE(checkedNames({u"a"_s, u"b"_s, u"c"_s}), checked); // Tab chooses nothing
}

void tst_LkSelection::radioButtonsOfAGroup()
{
    QVERIFY(show("Item { T.ButtonGroup { id: group } "
                 "Item { LKRadioButton { objectName: 'a'; text: 'A'; T.ButtonGroup.group: group } } "
                 "Item { y: 40; LKRadioButton { objectName: 'b'; text: 'B'; T.ButtonGroup.group: group } } "
                 "LKRadioButton { objectName: 'other'; y: 80; text: 'Other' } }"));
    const QStringList names = {u"a"_s, u"b"_s, u"other"_s};
    click(find(u"other"_s));
    click(find(u"a"_s));
    QCOMPARE(checkedNames(names), u"aother"_s);
    press(Qt::Key_Down);
    QCOMPARE(checkedNames(names), u"bother"_s);
    press(Qt::Key_Down);
    QCOMPARE(checkedNames(names), u"aother"_s);
    press(Qt::Key_Tab);
    QCOMPARE(focusName(), u"other"_s);
    press(Qt::Key_Down); // alone
    QCOMPARE(focusName(), u"other"_s);
    QCOMPARE(checkedNames(names), u"aother"_s);
}

void tst_LkSelection::radioButtonColours_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("state");
    for (const char *state : {"normal", "hovered", "pressed", "disabled"}) {
        QTest::addRow("%s", state) << false << QString::fromLatin1(state);
        QTest::addRow("checked, %s", state) << true << QString::fromLatin1(state);
    }
}

void tst_LkSelection::radioButtonColours()
{
    QFETCH(const bool, checked);
    QFETCH(const QString, state);
    QVERIFY(show("Item { width: 200; height: 100; LKRadioButton { objectName: 'button'; x: 40; y: 40; text: 'A' } }"));
    auto *button = find(u"button"_s);
    button->setProperty("checked", checked);
    button->setEnabled(state != "disabled"_L1);
    moveMouseAway();
    const QPoint centre = button->mapToScene({10, 10}).toPoint();
    if (state == "hovered"_L1)
        moveMouseTo(button);
    else if (state == "pressed"_L1)
        QTest::mousePress(window(), Qt::LeftButton, {}, centre);
    const QString prefix = checked ? u"radio-checked-"_s : u"radio-unchecked-"_s;
    const auto *circle = item(button, "indicator");
    for (const QString &theme : {u"default"_s, u"dark"_s}) {
        application()->setThemeMode(theme);
        QTRY_COMPARE(color(circle, "color"), token(prefix + u"background"_s, state));
        QCOMPARE(QQmlProperty::read(circle, u"border.color"_s).value<QColor>(), token(prefix + u"border"_s, state));
        QCOMPARE(color(item(button, "contentItem"), "color"), token(prefix + u"text"_s, state));
    }
    if (state == "pressed"_L1)
        QTest::mouseRelease(window(), Qt::LeftButton, {}, centre);
}

void tst_LkSelection::radioButtonShowsADot()
{
    QVERIFY(show("LKRadioButton { text: 'A' }"));
    const auto *circle = item(root(), "indicator");
    QCOMPARE(itemsWith(circle, "radius").size(), 0);
    click(root());
    moveMouseAway();
    QCOMPARE(itemsWith(circle, "radius").size(), 1);
    const auto *dot = itemsWith(circle, "radius")[0];
    QCOMPARE(dot->size(), QSizeF(8, 8));
    QCOMPARE(dot->mapToItem(circle, {4, 4}), QPointF(10, 10));
    QTRY_COMPARE(color(dot, "color"), token(u"radio-checked-icon"_s));
}

void tst_LkSelection::radioButtonText_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("font");
    QTest::addColumn<bool>("elided");
    QTest::addColumn<int>("lines");
    QTest::newRow("at rest") << QByteArray() << u"radioButtonLabelSecondary"_s << false << 1;
    QTest::newRow("another font") << QByteArray("textFontName: 'title'") << u"title"_s << false << 1;
    QTest::newRow("an unknown font") << QByteArray("textFontName: 'none'") << u"radioButtonLabelSecondary"_s << false
                                     << 1;
    QTest::newRow("two lines") << QByteArray("textWidth: 120") << u"radioButtonLabelSecondary"_s << false << 2;
    QTest::newRow("elided") << QByteArray("textWidth: 120; autoWrapMode: Text.NoWrap") << u"radioButtonLabelSecondary"_s
                            << true << 1;
    QTest::newRow("cut") << QByteArray("textWidth: 120; autoWrapMode: Text.NoWrap; elide: Text.ElideNone")
                         << u"radioButtonLabelSecondary"_s << false << 1;
}

void tst_LkSelection::radioButtonText()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, font);
    QFETCH(const bool, elided);
    QFETCH(const int, lines);
    QVERIFY(show("LKRadioButton { property var fonts: FontConstants; text: 'A text of a certain length'; " + properties
                 + " }"));
    const auto *text = item(root(), "radioTextId");
    QCOMPARE(text, item(root(), "contentItem"));
    QCOMPARE(text->property("text").toString(), u"A text of a certain length"_s);
    QCOMPARE(text->property("textFormat").toInt(), int(Qt::PlainText));
    QCOMPARE(text->property("font").value<QFont>(),
             root()->property("fonts").value<QObject *>()->property(font.toLatin1()).value<QFont>());
    QCOMPARE(text->property("truncated").toBool(), elided);
    QCOMPARE(text->property("lineCount").toInt(), lines);
    QCOMPARE(root()->implicitWidth(), 28 + root()->property("textWidth").toReal());
}

void tst_LkSelection::radioButtonPadding_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_LkSelection::radioButtonPadding()
{
    QFETCH(const bool, mirrored);
    QVERIFY(show("Item { property bool rtl; LayoutMirroring.enabled: rtl; LayoutMirroring.childrenInherit: true; "
                 "LKRadioButton { objectName: 'button'; text: 'A' } }"));
    root()->setProperty("rtl", mirrored);
    auto *button = find(u"button"_s);
    const double width = button->width();
    const double offset = item(button, "indicator")->x();
    QCOMPARE(offset, mirrored ? width - 20 : 0.0);
    button->setProperty("radioButtonRightPadding", 30);
    QCOMPARE(button->width(), width + 30);
    QCOMPARE(item(button, "indicator")->x(), mirrored ? offset + 30 : offset);
    QCOMPARE(item(button, "contentItem")->x(), mirrored ? 30.0 : 0.0);
}

namespace {
const QByteArray Fruit = "LKComboBox { model: ['Apple', 'Banana', 'Blackberry', 'Blueberry', 'Cherry', 'Date', 'Fig', "
                         "'Grape', 'Kiwi', 'Lemon']; ";
}

void tst_LkSelection::comboBoxFindsWhatIsTyped_data()
{
    QTest::addColumn<bool>("open");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("index");
    for (const bool open : {false, true}) {
        const char *where = open ? "open" : "closed";
        QTest::addRow("a letter, %s", where) << open << u"k"_s << 8;
        QTest::addRow("a capital letter, %s", where) << open << u"K"_s << 8;
        QTest::addRow("a beginning, %s", where) << open << u"blu"_s << 3;
        QTest::addRow("the same letter again, %s", where) << open << u"bbb"_s << 3;
        QTest::addRow("around the end, %s", where) << open << u"bbbb"_s << 1;
        QTest::addRow("of no row, %s", where) << open << u"z"_s << 0;
    }
}

void tst_LkSelection::comboBoxFindsWhatIsTyped()
{
    QFETCH(const bool, open);
    QFETCH(const QString, typed);
    QFETCH(const int, index);
    QVERIFY(show(Fruit + "}"));
    QSignalSpy activated(root(), SIGNAL(activated(int)));
    press(Qt::Key_Tab);
    if (open) {
        press(Qt::Key_Space);
        QTRY_COMPARE(popup()->property("opened").toBool(), true);
    }
    for (const QChar letter : typed)
        QTest::keyClick(window(), letter.toLatin1());
    QCOMPARE(root()->property(open ? "highlightedIndex" : "currentIndex").toInt(), index);
    if (!open) {
        QCOMPARE(activated.isEmpty(), index == 0);
        return;
    }
    QCOMPARE(activated.count(), 0);
    press(Qt::Key_Return);
    QTRY_COMPARE(popup()->property("visible").toBool(), false);
    QCOMPARE(root()->property("currentIndex").toInt(), index);
}

void tst_LkSelection::comboBoxKeepsItsBinding()
{
    QVERIFY(show(Fruit + "property int chosen: 1; currentIndex: chosen }"));
    press(Qt::Key_Tab);
    press(Qt::Key_K);
    press(Qt::Key_PageUp);
    QCOMPARE(root()->property("currentIndex").toInt(), 0);
    root()->setProperty("chosen", 5);
    QCOMPARE(root()->property("currentIndex").toInt(), 5);
}

void tst_LkSelection::comboBoxScrolls_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("high enough") << 800 << false << false;
    QTest::newRow("too low") << 140 << false << true;
    QTest::newRow("too low, mirrored") << 140 << true << true;
}

void tst_LkSelection::comboBoxScrolls()
{
    QFETCH(const int, maximum);
    QFETCH(const bool, mirrored);
    QFETCH(const bool, scrolls);
    QVERIFY(show(Fruit + "property bool rtl; LayoutMirroring.enabled: rtl; width: 200 }"));
    window()->resize(400, 600);
    root()->setProperty("rtl", mirrored);
    root()->setProperty("popupMaxHeight", maximum);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    QTRY_COMPARE(popup()->property("opened").toBool(), true);
    QCOMPARE_LE(popup()->property("height").toReal(), maximum);
    QQuickItem *bar = nullptr;
    for (QQuickItem *child : list()->childItems()) {
        if (child->inherits("QQuickScrollBar"))
            bar = child;
    }
    QVERIFY(bar);
    QTRY_COMPARE(bar->isVisible(), scrolls);
    if (!scrolls)
        return;
    QCOMPARE(bar->x(), mirrored ? 0 : list()->width() - bar->width());
    press(Qt::Key_End);
    QTRY_COMPARE_GT(list()->property("contentY").toReal(), 0);
    QTRY_COMPARE_GT(bar->property("position").toReal(), 0);
}

void tst_LkSelection::comboBoxHasATick()
{
    QVERIFY(show(Fruit + "currentIndex: 2 }"));
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    QTRY_COMPARE(popup()->property("opened").toBool(), true);
    QStringList ticked;
    for (const QQuickItem *icon : itemsWith(list(), "svgName")) {
        QCOMPARE(icon->property("svgName").toString(), u"check-bold"_s);
        ticked += icon->parentItem()->parentItem()->property("text").toString();
    }
    QCOMPARE(ticked, QStringList(u"Blackberry"_s));
}

void tst_LkSelection::comboBoxByMouse()
{
    QVERIFY(show(Fruit + "}"));
    QSignalSpy activated(root(), SIGNAL(activated(int)));
    click(root());
    QTRY_COMPARE(popup()->property("opened").toBool(), true);
    QQuickItem *row = nullptr;
    QMetaObject::invokeMethod(list(), "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, 3));
    QVERIFY(row);
    // A row of a list takes the mouse from its first frame on.
    QTRY_COMPARE((moveMouseTo(row), root()->property("highlightedIndex").toInt()), 3);
    click(row);
    QTRY_COMPARE(popup()->property("visible").toBool(), false);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(root()->property("displayText").toString(), u"Blueberry"_s);
    root()->setEnabled(false);
    click(root());
    QCOMPARE(popup()->property("visible").toBool(), false);
}

void tst_LkSelection::sliderByKeyboard_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("key");
    QTest::addColumn<double>("value");
    const QByteArray level = "to: 100; stepSize: 2; value: 40";
    const QByteArray upright = level + "; orientation: Qt.Vertical";
    const QByteArray mirrored = level + "; LayoutMirroring.enabled: true";
    const QByteArray backwards = "from: 100; to: 0; stepSize: 2; value: 40";
    QTest::newRow("right") << level << int(Qt::Key_Right) << 42.0;
    QTest::newRow("left") << level << int(Qt::Key_Left) << 38.0;
    QTest::newRow("up") << level << int(Qt::Key_Up) << 42.0;
    QTest::newRow("down") << level << int(Qt::Key_Down) << 38.0;
    QTest::newRow("home") << level << int(Qt::Key_Home) << 0.0;
    QTest::newRow("end") << level << int(Qt::Key_End) << 100.0;
    QTest::newRow("page up") << level << int(Qt::Key_PageUp) << 50.0;
    QTest::newRow("page down") << level << int(Qt::Key_PageDown) << 30.0;
    QTest::newRow("another key") << level << int(Qt::Key_A) << 40.0;
    QTest::newRow("vertical, up") << upright << int(Qt::Key_Up) << 42.0;
    QTest::newRow("vertical, right") << upright << int(Qt::Key_Right) << 42.0;
    QTest::newRow("mirrored, right") << mirrored << int(Qt::Key_Right) << 38.0;
    QTest::newRow("mirrored, left") << mirrored << int(Qt::Key_Left) << 42.0;
    QTest::newRow("mirrored, up") << mirrored << int(Qt::Key_Up) << 42.0;
    QTest::newRow("from above, right") << backwards << int(Qt::Key_Right) << 38.0;
    QTest::newRow("from above, home") << backwards << int(Qt::Key_Home) << 100.0;
    QTest::newRow("in hundredths") << QByteArray("value: 0.4") << int(Qt::Key_Right) << 0.41;
    QTest::newRow("without steps") << QByteArray("value: 0.4; stepSize: 0") << int(Qt::Key_Right) << 0.41;
    QTest::newRow("onto a step") << QByteArray("to: 10; stepSize: 2; value: 3") << int(Qt::Key_Right) << 6.0;
}

void tst_LkSelection::sliderByKeyboard()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const int, key);
    QFETCH(const double, value);
    QVERIFY(show("LKSlider { " + properties + " }"));
    const double before = root()->property("value").toReal();
    QSignalSpy moved(root(), SIGNAL(moved()));
    press(Qt::Key_Tab);
    QVERIFY(root()->hasActiveFocus());
    press(Qt::Key(key));
    QCOMPARE(root()->property("value").toReal(), value);
    QCOMPARE(moved.count(), value == before ? 0 : 1);
}

void tst_LkSelection::sliderKeepsItsBinding()
{
    QVERIFY(show("LKSlider { property real volume: 40; to: 100; value: volume }"));
    press(Qt::Key_Tab);
    press(Qt::Key_Home);
    QCOMPARE(root()->property("value").toReal(), 0.0);
    root()->setProperty("volume", 70);
    QCOMPARE(root()->property("value").toReal(), 70.0);
}

void tst_LkSelection::sliderByWheel()
{
    QVERIFY(show("LKSlider { to: 100; value: 40 }"));
    QSignalSpy moved(root(), SIGNAL(moved()));
    QTest::wheelEvent(window(), QPointF(20, root()->height() / 2), {0, 120});
    QCOMPARE(root()->property("value").toReal(), 41.0);
    QTest::wheelEvent(window(), QPointF(20, root()->height() / 2), {0, -240});
    QCOMPARE(root()->property("value").toReal(), 39.0);
    QCOMPARE(moved.count(), 2);
}

void tst_LkSelection::sliderByMouse_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    // 100 pixels of way for the handle's centre.
    QTest::newRow("horizontal") << QByteArray("width: 124") << QPointF(12, 12) << QPointF(42, 12);
    QTest::newRow("mirrored") << QByteArray("width: 124; LayoutMirroring.enabled: true") << QPointF(112, 12)
                              << QPointF(82, 12);
    QTest::newRow("right to left") << QByteArray("width: 124; rightToLeft: true") << QPointF(112, 12)
                                   << QPointF(82, 12);
    QTest::newRow("vertical") << QByteArray("height: 124; orientation: Qt.Vertical") << QPointF(12, 112)
                              << QPointF(12, 82);
}

void tst_LkSelection::sliderByMouse()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QPointF, from);
    QFETCH(const QPointF, to);
    QVERIFY(show("LKSlider { to: 100; " + properties + " }"));
    QSignalSpy moved(root(), SIGNAL(moved()));
    QTest::mousePress(window(), Qt::LeftButton, {}, from.toPoint());
    QTest::mouseMove(window(), ((from + to) / 2).toPoint());
    QTest::mouseMove(window(), to.toPoint());
    QCOMPARE_GE(moved.count(), 1);
    QTest::mouseRelease(window(), Qt::LeftButton, {}, to.toPoint());
    QCOMPARE_LE(std::abs(root()->property("value").toReal() - 30), 1.5);
}

void tst_LkSelection::sliderFromRightToLeft_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<double>("x");
    QTest::newRow("neither") << false << false << 29.0;
    QTest::newRow("by the layout") << true << false << 79.0;
    QTest::newRow("by itself") << false << true << 79.0;
    QTest::newRow("both") << true << true << 79.0;
}

void tst_LkSelection::sliderFromRightToLeft()
{
    QFETCH(const bool, mirrored);
    QFETCH(const bool, rightToLeft);
    QFETCH(const double, x);
    QVERIFY(show("Item { property bool rtl; LayoutMirroring.enabled: rtl; LayoutMirroring.childrenInherit: true; "
                 "LKSlider { objectName: 'slider'; width: 124; value: 0.25 } }"));
    auto *slider = find(u"slider"_s);
    root()->setProperty("rtl", mirrored);
    slider->setProperty("rightToLeft", rightToLeft);
    QCOMPARE(item(slider, "handle")->x(), x);
    slider->setProperty("rightToLeft", false); // as the layout says again
    QCOMPARE(item(slider, "handle")->x(), mirrored ? 79.0 : 29.0);
    root()->setProperty("rtl", !mirrored);
    QCOMPARE(item(slider, "handle")->x(), mirrored ? 29.0 : 79.0);
}

void tst_LkSelection::sliderGeometry()
{
    QVERIFY(show("LKSlider { width: 124; value: 0.5; handleWidth: 20; barThickness: 6; handleRadius: 3 }"));
    const auto *handle = item(root(), "handle");
    QCOMPARE(handle->size(), QSizeF(20, 20));
    QCOMPARE(handle->property("radius").toReal(), 3.0);
    QCOMPARE(handle->position(), QPointF(52, 4));
    const auto *bar = item(root(), "background");
    QCOMPARE(QRectF(bar->position(), bar->size()), QRectF(4, 11, 116, 6));
    const auto *full = bar->childItems().constFirst();
    QCOMPARE(QRectF(full->position(), full->size()), QRectF(0, 0, 58, 6));
}

void tst_LkSelection::sliderShowsItsValue_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole numbers") << QByteArray("to: 100; value: 33.4") << u"33"_s;
    QTest::newRow("two decimals") << QByteArray("value: 0.5") << u"0.50"_s;
    QTest::newRow("decimals asked for") << QByteArray("value: 0.5; decimals: 1") << u"0.5"_s;
    QTest::newRow("the host's text") << QByteArray("value: 0.5; tooltip: 'Half'") << u"Half"_s;
    QTest::newRow("none") << QByteArray("value: 0.5; tooltip: ''") << QString();
}

void tst_LkSelection::sliderShowsItsValue()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, text);
    QVERIFY(show("Item { width: 300; height: 200; LKSlider { objectName: 'slider'; locale: Qt.locale('C'); x: 40; "
                 "y: 100; "
                 + properties + " } }"));
    auto *slider = find(u"slider"_s);
    QCOMPARE(toolTip(), QString());
    const QPoint handle = item(slider, "handle")->mapToScene({8, 8}).toPoint();
    QTest::mousePress(window(), Qt::LeftButton, {}, handle);
    QTRY_COMPARE(toolTip(), text);
    QTest::mouseRelease(window(), Qt::LeftButton, {}, handle);
    QTRY_COMPARE(toolTip(), QString());
    slider->setFocus(false);
    press(Qt::Key_Tab);
    QTRY_COMPARE(toolTip(), text);
}

void tst_LkSelection::sliderColours_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("state");
    QTest::newRow("at rest") << true << u"normal"_s;
    QTest::newRow("disabled") << false << u"disabled"_s;
}

void tst_LkSelection::sliderColours()
{
    QFETCH(const bool, enabled);
    QFETCH(const QString, state);
    QVERIFY(show("LKSlider { value: 0.5 }"));
    moveMouseAway();
    root()->setEnabled(enabled);
    for (const QString &theme : {u"default"_s, u"highcontrast"_s}) {
        application()->setThemeMode(theme);
        const auto *bar = item(root(), "background");
        QTRY_COMPARE(color(bar, "color"), token(u"separator-primary"_s, state));
        QCOMPARE(color(bar->childItems().constFirst(), "color"), token(u"toggle-toggled-background"_s, state));
        QCOMPARE(color(item(root(), "handle"), "color"), token(u"toggle-toggled-background"_s, state));
    }
}

void tst_LkSelection::disabledSliderStandsStill()
{
    QVERIFY(show("LKSlider { to: 100; value: 40 }"));
    press(Qt::Key_Tab);
    root()->setEnabled(false);
    press(Qt::Key_Home);
    click(root(), {100, 12});
    QTest::wheelEvent(window(), QPointF(20, 12), {0, 120});
    QCOMPARE(root()->property("value").toReal(), 40.0);
}

LUMAKIT_TEST_MAIN(tst_LkSelection)
#include "tst_lk_selection.moc"
