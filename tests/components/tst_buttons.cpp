#include <ComponentTest.h>

#include <QAccessible>
#include <QQmlProperty>

using namespace Qt::StringLiterals;

class tst_Buttons : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void repeatedReleasesOfOtherKeysGoOn();
    void wButtonTriggers_data();
    void wButtonTriggers();
    void wButtonIsNotTriggeredByAHeldKey();
    void wButtonTakesTheColourOfItsState_data();
    void wButtonTakesTheColourOfItsState();
    void wButtonBorderAndCorners();
    void aLongTextIsElided_data();
    void aLongTextIsElided();
    void sizeFollowsTheFontScale_data();
    void sizeFollowsTheFontScale();

    void accessibility_data();
    void accessibility();

    void iconStandsOnItsSide_data();
    void iconStandsOnItsSide();
    void iconHasTheColourOfTheState();
    void iconButtonIsRound_data();
    void iconButtonIsRound();
    void hyperlinkChangesTheCursor_data();
    void hyperlinkChangesTheCursor();
    void tagLetsTheMousePass_data();
    void tagLetsTheMousePass();
    void keyIsACircle_data();
    void keyIsACircle();
    void keysAreOfOneSize_data();
    void keysAreOfOneSize();

    void dialogButtonsEmit_data();
    void dialogButtonsEmit();
    void dialogButtonsStandInOrder_data();
    void dialogButtonsStandInOrder();
    void dialogButtonsExistWhileVisible();
    void dialogButtonsFitTheirBox_data();
    void dialogButtonsFitTheirBox();

    void overflowListByKeyboard_data();
    void overflowListByKeyboard();
    void overflowListByMouse_data();
    void overflowListByMouse();
    void overflowListBeginsAtARowThatCanBeChosen();
    void overflowListOpensBelowItsButton();
    void overflowListRemovesRows();
    void overflowListTellsThatItHides();

    void splitButtonEmits_data();
    void splitButtonEmits();
    void splitButtonHalves_data();
    void splitButtonHalves();
    void arrowsMoveInASplitButton_data();
    void arrowsMoveInASplitButton();
    void splitButtonHasARingOfItsShape();
    void splitButtonStaysDown();
    void tabStopsOfASplitIconButton_data();
    void tabStopsOfASplitIconButton();
    void layoutOfASplitIconButton();

    void peopleAreSummedUp_data();
    void peopleAreSummedUp();
    void noListOfPeopleIsAnEmptyOne();
    void peopleRowIsMadeCurrent();
    void disabledPeopleRowIsDimmed();
    void peopleRowFollowsItsStateInHighContrast();

private:
    static QColor color(const QObject *object, const char *property)
    {
        return object->property(property).value<QColor>();
    }

    static QQuickItem *item(const QObject *object, const char *property)
    {
        return object->property(property).value<QQuickItem *>();
    }

    /// The children, however deep, that have the property, from left to right and top to bottom.
    static QList<QQuickItem *> itemsWith(const QQuickItem *parent, const char *property)
    {
        QList<QQuickItem *> items;
        for (QQuickItem *child : parent->childItems()) {
            if (child->metaObject()->indexOfProperty(property) >= 0)
                items += child;
            items += itemsWith(child, property);
        }
        std::stable_sort(items.begin(), items.end(), [](const QQuickItem *a, const QQuickItem *b) {
            const QPointF first = a->mapToScene({});
            const QPointF second = b->mapToScene({});
            return std::pair(first.y(), first.x()) < std::pair(second.y(), second.x());
        });
        return items;
    }

    static QQuickItem *rowOf(QQuickItem *view, int index)
    {
        QQuickItem *row = nullptr;
        QMetaObject::invokeMethod(view, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, index));
        return row;
    }

    static double sceneX(const QQuickItem *item) { return item->mapToScene({}).x(); }
};

void tst_Buttons::wButtonTriggers_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("count");
    QTest::newRow("space") << int(Qt::Key_Space) << true << 1;
    QTest::newRow("enter") << int(Qt::Key_Enter) << true << 1;
    QTest::newRow("return") << int(Qt::Key_Return) << true << 1;
    QTest::newRow("another key") << int(Qt::Key_A) << true << 0;
    QTest::newRow("disabled") << int(Qt::Key_Space) << false << 0;
}

void tst_Buttons::wButtonTriggers()
{
    QFETCH(const int, key);
    QFETCH(const bool, enabled);
    QFETCH(const int, count);
    QVERIFY(show("Item { WButton { objectName: 'button'; text: 'Press'; focus: true } }"));
    auto *button = find(u"button"_s);
    button->setEnabled(enabled);
    QSignalSpy triggered(button, SIGNAL(triggered()));
    button->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key(key));
    QCOMPARE(triggered.count(), count);
    click(button);
    QCOMPARE(triggered.count(), enabled ? count + 1 : 0);
}

void tst_Buttons::wButtonIsNotTriggeredByAHeldKey()
{
    QVERIFY(show("WButton { text: 'Press'; focus: true }"));
    QSignalSpy triggered(root(), SIGNAL(triggered()));
    root()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QCoreApplication::sendEvent(window(), &repeated);
    QCOMPARE(triggered.count(), 1);
}

void tst_Buttons::wButtonTakesTheColourOfItsState_data()
{
    QTest::addColumn<QString>("state");
    for (const char *state : {"normal", "hovered", "pressed", "disabled", "focused", "checked"})
        QTest::newRow(state) << QString::fromLatin1(state);
}

void tst_Buttons::wButtonTakesTheColourOfItsState()
{
    QFETCH(const QString, state);
    QVERIFY(show("Item { width: 400; height: 300; WButton { objectName: 'button'; x: 20; y: 20; text: 'State'; "
                 "backgroundColorSetName: 'button-primary-background'; textColorSetName: 'button-secondary-text' } }"));
    auto *button = find(u"button"_s);
    moveMouseAway();
    if (state == "hovered"_L1)
        moveMouseTo(button);
    else if (state == "pressed"_L1)
        QTest::mousePress(window(), Qt::LeftButton, {}, button->mapToScene({5, 5}).toPoint());
    else if (state == "disabled"_L1)
        button->setEnabled(false);
    else if (state == "focused"_L1)
        button->forceActiveFocus(Qt::TabFocusReason);
    else if (state == "checked"_L1)
        button->setProperty("checked", true);

    const WColorSet background = application()->getColorSet(u"button-primary-background"_s);
    QTRY_COMPARE(color(button, "colour"), background.getColor(state));
    QCOMPARE(color(item(button, "background"), "color"), background.getColor(state));
    QCOMPARE(color(item(button, "contentItem"), "color"),
             application()->getColorSet(u"button-secondary-text"_s).getColor(state));
    if (state == "pressed"_L1)
        QTest::mouseRelease(window(), Qt::LeftButton, {}, button->mapToScene({5, 5}).toPoint());
}

void tst_Buttons::wButtonBorderAndCorners()
{
    QVERIFY(show("WButton { text: 'Press'; radius: 6; borderWidth: 2 }"));
    auto *background = item(root(), "background");
    QCOMPARE(background->property("radius").toReal(), 6.0);
    QCOMPARE(QQmlProperty::read(background, u"border.width"_s).toInt(), 2);
    root()->setProperty("isRectangle", false);
    QCOMPARE(background->property("radius").toReal(), root()->height() / 2);
    root()->setProperty("borderColorSetName", QString());
    QCOMPARE(QQmlProperty::read(background, u"border.width"_s).toInt(), 0);
}

void tst_Buttons::aLongTextIsElided_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::newRow("WButton") << QByteArray("WButton {");
    QTest::newRow("WSvgButton") << QByteArray("WSvgButton { iconName: 'list';");
    QTest::newRow("WPillButton") << QByteArray("WPillButton {");
    QTest::newRow("WHyperlink") << QByteArray("WHyperlink {");
    QTest::newRow("WTag") << QByteArray("WTag {");
    QTest::newRow("WMessageBannerButton") << QByteArray("WMessageBannerButton {");
    QTest::newRow("PeopleSummaryBricklet") << QByteArray("PeopleSummaryBricklet {");
}

void tst_Buttons::aLongTextIsElided()
{
    QFETCH(const QByteArray, component);
    QVERIFY(show(component + " text: 'Donaudampfschifffahrtsgesellschaft' }"));
    root()->setWidth(root()->implicitWidth());
    QQuickItem *text = itemsWith(root(), "truncated").constFirst();
    QCOMPARE(text->property("truncated").toBool(), false);
    root()->setWidth(root()->implicitWidth() - 20);
    QTRY_COMPARE(text->property("truncated").toBool(), true);
    QCOMPARE_LE(text->mapToItem(root(), {text->width(), 0}).x(), root()->width());
}

void tst_Buttons::sizeFollowsTheFontScale_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::newRow("WButton") << QByteArray("WButton { text: 'Scaled'; topPadding: 8; bottomPadding: 8 }");
    QTest::newRow("WSvgButton") << QByteArray("WSvgButton { text: 'Scaled'; topPadding: 8; bottomPadding: 8 }");
    QTest::newRow("WHyperlink") << QByteArray("WHyperlink { text: 'Scaled' }");
    QTest::newRow("WTag") << QByteArray("WTag { text: 'Scaled' }");
    QTest::newRow("WKeyButton") << QByteArray("WKeyButton { primary: '2'; secondary: 'ABC' }");
    QTest::newRow("WDialogButtonBox") << QByteArray("WDialogButtonBox { okText: 'Scaled' }");
    QTest::newRow("WSvgSplitButton") << QByteArray("WSvgSplitButton { leftButton.text: 'Scaled' }");
}

void tst_Buttons::sizeFollowsTheFontScale()
{
    QFETCH(const QByteArray, component);
    QVERIFY(show(component));
    const double width = root()->implicitWidth();
    application()->setFontScaleFactor(1.5);
    QTRY_COMPARE_GT(root()->implicitWidth(), width + 5);
    for (const QQuickItem *text : itemsWith(root(), "truncated"))
        QVERIFY2(!text->property("truncated").toBool(), qPrintable(text->property("text").toString()));
}

void tst_Buttons::accessibility_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *name, const QByteArray &qml, QAccessible::Role role, const QString &text) {
        QTest::newRow(name) << qml << role << text;
    };
    row("WButton", "WButton { text: 'Press'; tooltip: 'Tip' }", QAccessible::Button, u"Press"_s);
    row("WButton without a text", "WButton { tooltip: 'Tip' }", QAccessible::Button, u"Tip"_s);
    row("WSvgButton", "WSvgButton { iconName: 'list'; tooltip: 'Tip' }", QAccessible::Button, u"Tip"_s);
    row("WSvgIconButton", "WSvgIconButton { iconName: 'list'; tooltip: 'Tip' }", QAccessible::Button, u"Tip"_s);
    row("WPillButton", "WPillButton { text: 'Press' }", QAccessible::Button, u"Press"_s);
    row("WHyperlink", "WHyperlink { text: 'Press' }", QAccessible::Link, u"Press"_s);
    row("WTag that is interactive", "WTag { text: 'Press'; interactive: true }", QAccessible::Button, u"Press"_s);
    row("WKeyButton", "WKeyButton { primary: '2'; secondary: 'ABC' }", QAccessible::Button, u"2 ABC"_s);
    row("WKeyButton with one text", "WKeyButton { primary: '#' }", QAccessible::Button, u"#"_s);
    row("WMessageBannerButton", "WMessageBannerButton { text: 'New' }", QAccessible::Button, u"New"_s);
    row("PeopleSummaryBricklet", "PeopleSummaryBricklet { text: 'Team'; names: ['A', 'B'] }", QAccessible::Button,
        u"Team, A, B"_s);
}

void tst_Buttons::accessibility()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QAccessible::Role, role);
    QFETCH(const QString, name);
    QVERIFY(show(qml));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(root());
    QVERIFY(interface);
    QCOMPARE(interface->role(), role);
    QCOMPARE(interface->text(QAccessible::Name), name);
    QVERIFY(!interface->state().checkable);
    QVERIFY(interface->state().focusable);

    QSignalSpy triggered(root(), SIGNAL(triggered()));
    QVERIFY(interface->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(triggered.count(), 1);

    root()->setProperty("checkable", true);
    root()->setProperty("checked", true);
    QVERIFY(interface->state().checkable);
    QVERIFY(interface->state().checked);
    interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(triggered.count(), 2);
    QCOMPARE(root()->property("checked").toBool(), false);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(triggered.count(), 3);
    QCOMPARE(root()->property("checked").toBool(), true);
    root()->setEnabled(false);
    QVERIFY(interface->state().disabled);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(triggered.count(), 3);
}

void tst_Buttons::iconStandsOnItsSide_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("isIconLeft");
    QTest::newRow("left") << int(Qt::AlignLeft) << false << true;
    QTest::newRow("right") << int(Qt::AlignRight) << false << false;
    QTest::newRow("left, mirrored") << int(Qt::AlignLeft) << true << false;
    QTest::newRow("right, mirrored") << int(Qt::AlignRight) << true << true;
}

void tst_Buttons::iconStandsOnItsSide()
{
    QFETCH(const int, alignment);
    QFETCH(const bool, mirrored);
    QFETCH(const bool, isIconLeft);
    QVERIFY(show("WSvgButton { property bool rtl; LayoutMirroring.enabled: rtl; LayoutMirroring.childrenInherit: true; "
                 "iconName: 'list'; text: 'List' }"));
    root()->setProperty("rtl", mirrored);
    root()->setProperty("alignment", alignment);
    const auto icons = itemsWith(root(), "svgName");
    const auto texts = itemsWith(root(), "truncated");
    QCOMPARE(icons.size(), 1);
    QCOMPARE(texts.size(), 1);
    QTRY_COMPARE(sceneX(icons[0]) < sceneX(texts[0]), isIconLeft);
    const double gap = isIconLeft ? sceneX(texts[0]) - sceneX(icons[0]) - icons[0]->width()
                                  : sceneX(icons[0]) - sceneX(texts[0]) - texts[0]->width();
    QCOMPARE(gap, root()->property("spacing").toReal());
    QCOMPARE(texts[0]->property("effectiveHorizontalAlignment").toInt(),
             int(mirrored ? Qt::AlignRight : Qt::AlignLeft));
    QCOMPARE(std::fmod(sceneX(icons[0]), 1.0), 0.0);
    QCOMPARE(std::fmod(icons[0]->mapToScene({}).y(), 1.0), 0.0);
}

void tst_Buttons::iconHasTheColourOfTheState()
{
    QVERIFY(show("WSvgIconButton { iconName: 'list'; iconColorSetName: 'button-ghost-text' }"));
    auto *icon = itemsWith(root(), "svgName").constFirst();
    const WColorSet colors = application()->getColorSet(u"button-ghost-text"_s);
    QCOMPARE(color(icon, "svgColor"), colors.normal);
    root()->setEnabled(false);
    QCOMPARE(color(icon, "svgColor"), colors.disabled);
    application()->setThemeMode(u"dark"_s);
    QVERIFY(application()->getColorSet(u"button-ghost-text"_s).disabled != colors.disabled);
    QCOMPARE(color(icon, "svgColor"), application()->getColorSet(u"button-ghost-text"_s).disabled);
}

void tst_Buttons::iconButtonIsRound_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::newRow("WSvgIconButton") << QByteArray("WSvgIconButton { iconName: 'list' }");
    QTest::newRow("a large icon") << QByteArray("WSvgIconButton { iconName: 'list'; iconWidth: 40; iconHeight: 40 }");
    QTest::newRow("WSvgButton without a text") << QByteArray("WSvgButton { iconName: 'list' }");
}

void tst_Buttons::iconButtonIsRound()
{
    QFETCH(const QByteArray, qml);
    QVERIFY(show(qml));
    QCOMPARE(root()->implicitWidth(), root()->implicitHeight());
    QCOMPARE(root()->property("cornerRadius").toReal(), root()->height() / 2);
    auto *icon = itemsWith(root(), "svgName").constFirst();
    QCOMPARE(icon->size(), QSizeF(root()->property("iconWidth").toReal(), root()->property("iconHeight").toReal()));
    QCOMPARE(icon->mapToItem(root(), {icon->width() / 2, icon->height() / 2}),
             QPointF(root()->width() / 2, root()->height() / 2));
}

void tst_Buttons::hyperlinkChangesTheCursor_data()
{
    QTest::addColumn<bool>("changeCursor");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::newRow("hand") << true << Qt::PointingHandCursor;
    QTest::newRow("arrow") << false << Qt::ArrowCursor;
}

void tst_Buttons::hyperlinkChangesTheCursor()
{
    QFETCH(const bool, changeCursor);
    QFETCH(const Qt::CursorShape, shape);
    QVERIFY(
        show("Item { width: 200; height: 100; WHyperlink { objectName: 'link'; x: 50; y: 50; text: 'Learn more' } }"));
    auto *link = find(u"link"_s);
    link->setProperty("changeCursor", changeCursor);
    moveMouseAway();
    moveMouseTo(link);
    QTRY_COMPARE(link->property("hovered").toBool(), true);
    QTRY_COMPARE(window()->cursor().shape(), shape);
    moveMouseAway();
    QTRY_COMPARE(window()->cursor().shape(), Qt::ArrowCursor);
}

void tst_Buttons::tagLetsTheMousePass_data()
{
    QTest::addColumn<bool>("interactive");
    QTest::newRow("a label") << false;
    QTest::newRow("a button") << true;
}

void tst_Buttons::tagLetsTheMousePass()
{
    QFETCH(const bool, interactive);
    QVERIFY(show("Item { width: 200; height: 100; MouseArea { objectName: 'below'; anchors.fill: parent } "
                 "WTag { objectName: 'tag'; text: 'Draft' } }"));
    auto *tag = find(u"tag"_s);
    tag->setProperty("interactive", interactive);
    QSignalSpy below(find(u"below"_s), SIGNAL(clicked(QQuickMouseEvent *)));
    QSignalSpy triggered(tag, SIGNAL(triggered()));
    click(tag);
    QCOMPARE(below.count(), interactive ? 0 : 1);
    QCOMPARE(triggered.count(), interactive ? 1 : 0);
    tag->setFocus(false);
    press(Qt::Key_Tab);
    QCOMPARE(tag->hasActiveFocus(), interactive);
    QCOMPARE(QAccessible::queryAccessibleInterface(tag)->role(),
             interactive ? QAccessible::Button : QAccessible::StaticText);
    QCOMPARE(QAccessible::queryAccessibleInterface(tag)->text(QAccessible::Name), u"Draft"_s);
}

void tst_Buttons::keyIsACircle_data()
{
    QTest::addColumn<int>("diameter");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("size");
    QTest::newRow("as wide as asked for") << 72 << 1.0 << 72.0;
    QTest::newRow("larger with larger fonts") << 72 << 1.5 << 108.0;
    QTest::newRow("not smaller with smaller fonts") << 72 << 0.5 << 72.0;
}

void tst_Buttons::keyIsACircle()
{
    QFETCH(const int, diameter);
    QFETCH(const double, scale);
    QFETCH(const double, size);
    QVERIFY(show("WKeyButton { primary: '7'; secondary: 'PQRS' }"));
    root()->setProperty("diameter", diameter);
    application()->setFontScaleFactor(float(scale));
    QCOMPARE(root()->size(), QSizeF(size, size));
    root()->setProperty("diameter", 1); // the texts need more
    QCOMPARE(root()->width(), root()->height());
    const auto texts = itemsWith(root(), "truncated");
    QCOMPARE(texts.size(), 2);
    QTRY_COMPARE_GT(root()->height(), texts[0]->height() + texts[1]->height());
}

void tst_Buttons::keysAreOfOneSize_data()
{
    QTest::addColumn<float>("scale");
    QTest::addColumn<int>("size");
    QTest::newRow("regular fonts") << 1.0F << 56;
    QTest::newRow("large fonts") << 1.5F << 84;
}

// With and without characters below the large one.
void tst_Buttons::keysAreOfOneSize()
{
    QFETCH(const float, scale);
    QFETCH(const int, size);
    application()->setFontScaleFactor(scale);
    QVERIFY(show("Row { WKeyButton { primary: '1' } WKeyButton { primary: '7'; secondary: 'PQRS' } }"));
    const auto keys = itemsWith(root(), "primary");
    QCOMPARE(keys.size(), 2);
    for (const QQuickItem *key : keys)
        QCOMPARE(key->size(), QSizeF(size, size));
    const auto texts = itemsWith(keys[1], "truncated");
    QCOMPARE(texts.size(), 2);
    QCOMPARE_GE(texts[0]->mapToItem(keys[1], QPointF()).y(), 0.0);
    QCOMPARE_LE(texts[1]->mapToItem(keys[1], QPointF(0, texts[1]->height())).y(), double(size));
}

void tst_Buttons::dialogButtonsEmit_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("accepted");
    QTest::addColumn<int>("rejected");
    QTest::newRow("OK") << QByteArray("okButton") << 1 << 0;
    QTest::newRow("middle") << QByteArray("middleButton") << 0 << 0;
    QTest::newRow("Cancel") << QByteArray("cancelButton") << 0 << 1;
}

void tst_Buttons::dialogButtonsEmit()
{
    QFETCH(const QByteArray, button);
    QFETCH(const int, accepted);
    QFETCH(const int, rejected);
    QVERIFY(show("WDialogButtonBox { okText: 'Save'; middleText: 'Discard'; cancelText: 'Cancel' }"));
    QSignalSpy acceptedSpy(root(), SIGNAL(accepted()));
    QSignalSpy rejectedSpy(root(), SIGNAL(rejected()));
    QSignalSpy clickedSpy(root(), SIGNAL(clicked(QQuickAbstractButton *)));
    QQuickItem *target = item(root(), button);
    QVERIFY(target);
    click(target);
    QCOMPARE(acceptedSpy.count(), accepted);
    QCOMPARE(rejectedSpy.count(), rejected);
    QCOMPARE(clickedSpy.count(), 1);
    QCOMPARE(clickedSpy[0][0].value<QObject *>(), target);
    target->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(clickedSpy.count(), 2);

    root()->setProperty(button.chopped(6) + "Enabled", false);
    click(target);
    QCOMPARE(clickedSpy.count(), 2);
}

void tst_Buttons::dialogButtonsStandInOrder_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_Buttons::dialogButtonsStandInOrder()
{
    QFETCH(const bool, mirrored);
    QVERIFY(show("WDialogButtonBox { property bool rtl; LayoutMirroring.enabled: rtl; "
                 "LayoutMirroring.childrenInherit: true; width: 400; padding: 16; "
                 "okText: 'Save'; middleText: 'Discard'; cancelText: 'Cancel' }"));
    root()->setProperty("rtl", mirrored);
    QList<QQuickItem *> buttons{item(root(), "okButton"), item(root(), "middleButton"), item(root(), "cancelButton")};
    if (mirrored) {
        std::reverse(buttons.begin(), buttons.end());
        QTRY_COMPARE(sceneX(buttons[0]), 16.0);
    } else {
        QTRY_COMPARE(sceneX(buttons[2]) + buttons[2]->width(), 400 - 16.0);
    }
    const double spacing = root()->property("spacing").toReal();
    QCOMPARE(sceneX(buttons[1]), sceneX(buttons[0]) + buttons[0]->width() + spacing);
    QCOMPARE(sceneX(buttons[2]), sceneX(buttons[1]) + buttons[1]->width() + spacing);
}

void tst_Buttons::dialogButtonsExistWhileVisible()
{
    QVERIFY(show("WDialogButtonBox { okText: 'Save'; middleText: 'Discard'; middleVisible: false }"));
    QVERIFY(item(root(), "okButton"));
    QVERIFY(!item(root(), "middleButton"));
    QVERIFY(!item(root(), "cancelButton"));
    const double width = root()->implicitWidth();

    root()->setProperty("cancelText", u"Cancel"_s);
    root()->setProperty("cancelBackgroundColor", u"button-cancel-fill-background"_s);
    QTRY_COMPARE_GT(root()->implicitWidth(), width);
    QCOMPARE(item(root(), "cancelButton")->property("text").toString(), u"Cancel"_s);
    QCOMPARE(color(item(root(), "cancelButton"), "colour"),
             application()->getColorSet(u"button-cancel-fill-background"_s).normal);
    root()->setProperty("cancelVisible", false);
    QVERIFY(!item(root(), "cancelButton"));
    QTRY_COMPARE(root()->implicitWidth(), width);
}

void tst_Buttons::dialogButtonsFitTheirBox_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("isElided");
    for (const bool mirrored : {false, true}) {
        const char *direction = mirrored ? "right to left" : "left to right";
        QTest::addRow("%s, by its own width", direction) << mirrored << 0 << false;
        QTest::addRow("%s, wider", direction) << mirrored << 700 << false;
        QTest::addRow("%s, narrower", direction) << mirrored << 400 << true;
    }
}

void tst_Buttons::dialogButtonsFitTheirBox()
{
    QFETCH(const bool, mirrored);
    QFETCH(const int, width);
    QFETCH(const bool, isElided);
    const QByteArray size = width > 0 ? "width: " + QByteArray::number(width) + "; " : QByteArray();
    QVERIFY(show("WDialogButtonBox { " + size + "LayoutMirroring.enabled: " + (mirrored ? "true" : "false")
                 + "; LayoutMirroring.childrenInherit: true; padding: 16; spacing: 8; "
                   "okText: 'Einstellungen übernehmen'; middleText: 'Zurücksetzen'; cancelText: 'Nein' }"));
    const auto *ok = item(root(), "okButton");
    const auto *middle = item(root(), "middleButton");
    const auto *cancel = item(root(), "cancelButton");
    QTRY_COMPARE(mirrored ? sceneX(cancel) : sceneX(cancel) + cancel->width(), mirrored ? 16.0 : root()->width() - 16);
    QCOMPARE(ok->width() < ok->implicitWidth(), isElided);
    QCOMPARE(middle->width(), middle->implicitWidth());
    QCOMPARE(cancel->width(), cancel->implicitWidth());
    const double start = mirrored ? root()->width() - sceneX(ok) - ok->width() : sceneX(ok);
    QCOMPARE_GE(start, 16.0);
    const double natural = ok->implicitWidth() + middle->implicitWidth() + cancel->implicitWidth() + 2 * 8 + 2 * 16;
    QCOMPARE(root()->implicitWidth(), natural);
    QCOMPARE(sceneX(mirrored ? ok : middle), sceneX(mirrored ? middle : ok) + (mirrored ? middle : ok)->width() + 8);
}

namespace {
const QByteArray OverflowList =
    "Item { width: 400; height: 300; WSvgIconButton { objectName: 'more'; x: 180; "
    "iconName: 'more-horizontal-bold'; WButtonsOverflowList { objectName: 'list'; "
    "model: ['Anna', { text: 'Ben', enabled: false }, { text: 'Christine', iconName: 'user' "
    "}, 'David'] } } }";
} // namespace

void tst_Buttons::overflowListByKeyboard_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("clicked");
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("backtab");
    const QList<int> none;
    QTest::newRow("return on the first") << QList<int>{Qt::Key_Return} << 0 << 0 << 0;
    QTest::newRow("down passes by a disabled row") << QList<int>{Qt::Key_Down, Qt::Key_Enter} << 2 << 0 << 0;
    QTest::newRow("up passes by it too") << QList<int>{Qt::Key_End, Qt::Key_Up, Qt::Key_Up, Qt::Key_Space} << 0 << 0
                                         << 0;
    QTest::newRow("up stops at the first") << QList<int>{Qt::Key_Up, Qt::Key_Return} << 0 << 0 << 0;
    QTest::newRow("end") << QList<int>{Qt::Key_End, Qt::Key_Return} << 3 << 0 << 0;
    QTest::newRow("down stops at the last") << QList<int>{Qt::Key_End, Qt::Key_Down, Qt::Key_Return} << 3 << 0 << 0;
    QTest::newRow("page down") << QList<int>{Qt::Key_PageDown, Qt::Key_Return} << 3 << 0 << 0;
    QTest::newRow("home") << QList<int>{Qt::Key_End, Qt::Key_Home, Qt::Key_Return} << 0 << 0 << 0;
    QTest::newRow("page up") << QList<int>{Qt::Key_End, Qt::Key_PageUp, Qt::Key_Return} << 0 << 0 << 0;
    QTest::newRow("escape") << QList<int>{Qt::Key_Escape} << -1 << 0 << 0;
    QTest::newRow("tab") << QList<int>{Qt::Key_Tab} << -1 << 1 << 0;
    QTest::newRow("back tab") << QList<int>{Qt::Key_Backtab} << -1 << 0 << 1;
}

void tst_Buttons::overflowListByKeyboard()
{
    QFETCH(const QList<int>, keys);
    QFETCH(const int, clicked);
    QFETCH(const int, tab);
    QFETCH(const int, backtab);
    QVERIFY(show(OverflowList));
    auto *list = find<QObject>(u"list"_s);
    QSignalSpy clickedSpy(list, SIGNAL(clicked(int)));
    QSignalSpy tabSpy(list, SIGNAL(tabPressed()));
    QSignalSpy backtabSpy(list, SIGNAL(backtabPressed()));
    find(u"more"_s)->forceActiveFocus(Qt::TabFocusReason);
    QMetaObject::invokeMethod(list, "open");
    QTRY_COMPARE(list->property("opened").toBool(), true);
    for (const int key : keys)
        press(Qt::Key(key));
    QTRY_COMPARE(list->property("visible").toBool(), false);
    QCOMPARE(clickedSpy.count(), clicked >= 0 ? 1 : 0);
    if (clicked >= 0)
        QCOMPARE(clickedSpy[0][0].toInt(), clicked);
    QCOMPARE(tabSpy.count(), tab);
    QCOMPARE(backtabSpy.count(), backtab);
    QTRY_VERIFY(find(u"more"_s)->hasActiveFocus()); // it comes back
}

void tst_Buttons::overflowListByMouse_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("clicks");
    QTest::newRow("a text") << 0 << true;
    QTest::newRow("disabled") << 1 << false;
    QTest::newRow("an object") << 2 << true;
}

void tst_Buttons::overflowListByMouse()
{
    QFETCH(const int, row);
    QFETCH(const bool, clicks);
    QVERIFY(show(OverflowList));
    auto *list = find<QObject>(u"list"_s);
    QSignalSpy clickedSpy(list, SIGNAL(clicked(int)));
    QMetaObject::invokeMethod(list, "open");
    QTRY_COMPARE(list->property("opened").toBool(), true);
    QTRY_VERIFY(rowOf(item(list, "contentItem"), 3)); // they are all there
    QQuickItem *button = rowOf(item(list, "contentItem"), row);
    QCOMPARE(QAccessible::queryAccessibleInterface(button)->role(), QAccessible::MenuItem);
    click(button);
    QCOMPARE(clickedSpy.count(), clicks ? 1 : 0);
    QCOMPARE(list->property("visible").toBool(), !clicks);
}

void tst_Buttons::overflowListBeginsAtARowThatCanBeChosen()
{
    QVERIFY(show(OverflowList));
    auto *list = find<QObject>(u"list"_s);
    list->setProperty("model", QVariantList{QVariantMap{{u"text"_s, u"Anna"_s}, {u"enabled"_s, false}}, u"Ben"_s});
    QMetaObject::invokeMethod(list, "open");
    QTRY_COMPARE(list->property("opened").toBool(), true);
    QCOMPARE(list->property("currentIndex").toInt(), 1);
    press(Qt::Key_Up);
    QCOMPARE(list->property("currentIndex").toInt(), 1);
}

void tst_Buttons::overflowListOpensBelowItsButton()
{
    QVERIFY(show(OverflowList));
    auto *list = find<QObject>(u"list"_s);
    QCOMPARE(item(list, "contentItem")->property("count").toInt(), 0); // no rows before they are needed
    QMetaObject::invokeMethod(list, "open");
    QTRY_COMPARE(list->property("opened").toBool(), true);
    QCOMPARE(item(list, "contentItem")->property("count").toInt(), 4);
    QCOMPARE(list->property("y").toReal(), find(u"more"_s)->height());
    QCOMPARE(item(list, "contentItem")->width(), list->property("listWidth").toReal());
    list->setProperty("moreButtonHeight", 50);
    QCOMPARE(list->property("y").toReal(), 50.0);
    list->setProperty("delegateHeight", 40);
    QTRY_COMPARE(item(list, "contentItem")->implicitHeight(), 4 * 40.0);
    list->setProperty("maximumVisibleRows", 2);
    QTRY_COMPARE(item(list, "contentItem")->height(), 2 * 40.0);
    QTRY_COMPARE(item(list, "contentItem")->property("interactive").toBool(), true);
}

void tst_Buttons::overflowListRemovesRows()
{
    QVERIFY(show("Item { width: 400; height: 300; ListModel { id: people; ListElement { text: 'Anna'; state: 1 } "
                 "ListElement { text: 'Ben'; state: 2 } } "
                 "WSvgIconButton { WButtonsOverflowList { objectName: 'list'; model: people; cancelVisible: true; "
                 "cancelTooltip: 'Remove'; onCancelClicked: index => people.remove(index) } } }"));
    auto *list = find<QObject>(u"list"_s);
    QSignalSpy clickedSpy(list, SIGNAL(clicked(int)));
    QSignalSpy cancelSpy(list, SIGNAL(cancelClicked(int)));
    QMetaObject::invokeMethod(list, "open");
    QTRY_COMPARE(list->property("opened").toBool(), true);
    auto *content = item(list, "contentItem");
    QTRY_VERIFY(rowOf(content, 1));
    QQuickItem *row = rowOf(content, 1);
    QCOMPARE(row->property("text").toString(), u"Ben"_s);
    QQuickItem *cancel = itemsWith(row, "iconColor").constFirst();
    QCOMPARE(QAccessible::queryAccessibleInterface(cancel)->text(QAccessible::Name), u"Remove"_s);
    click(cancel);
    QCOMPARE(cancelSpy.count(), 1);
    QCOMPARE(cancelSpy[0][0].toInt(), 1);
    QCOMPARE(clickedSpy.count(), 0);
    QVERIFY(list->property("visible").toBool());
    QTRY_COMPARE(content->property("count").toInt(), 1);
}

void tst_Buttons::overflowListTellsThatItHides()
{
    QVERIFY(show(OverflowList));
    auto *list = find<QObject>(u"list"_s);
    QMetaObject::invokeMethod(list, "open");
    QTRY_COMPARE(list->property("opened").toBool(), true);
    QCOMPARE(list->property("aboutToHidePopup").toBool(), false);
    QSignalSpy changed(list, SIGNAL(aboutToHidePopupChanged()));
    QMetaObject::invokeMethod(list, "close");
    QTRY_COMPARE(list->property("visible").toBool(), false);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(list->property("aboutToHidePopup").toBool(), false);
}

void tst_Buttons::splitButtonEmits_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("isLeft");
    for (const QByteArray type : {"WSvgSplitButton", "WSvgSplitIconButton"}) {
        QTest::newRow(type + ", left") << type << true;
        QTest::newRow(type + ", right") << type << false;
    }
}

void tst_Buttons::splitButtonEmits()
{
    QFETCH(const QByteArray, type);
    QFETCH(const bool, isLeft);
    QVERIFY(show(type + " { leftButton.iconName: 'list'; leftButton.tooltip: 'Left'; rightButton.tooltip: 'Right' }"));
    QSignalSpy left(root(), SIGNAL(leftClicked()));
    QSignalSpy right(root(), SIGNAL(rightClicked()));
    QSignalSpy &wanted = isLeft ? left : right;
    QQuickItem *button = item(root(), isLeft ? "leftButton" : "rightButton");
    click(button);
    QCOMPARE(wanted.count(), 1);
    button->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QCOMPARE(wanted.count(), 2);
    press(Qt::Key_Return);
    QCOMPARE(wanted.count(), 3);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(button);
    QCOMPARE(interface->text(QAccessible::Name), isLeft ? u"Left"_s : u"Right"_s);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(wanted.count(), 4);
    QCOMPARE((isLeft ? right : left).count(), 0);
    root()->setEnabled(false);
    click(button);
    QCOMPARE(wanted.count(), 4);
}

void tst_Buttons::splitButtonHalves_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("separator");
    QTest::newRow("with a line") << false << true;
    QTest::newRow("without a line") << false << false;
    QTest::newRow("mirrored") << true << true;
}

void tst_Buttons::splitButtonHalves()
{
    QFETCH(const bool, mirrored);
    QFETCH(const bool, separator);
    QVERIFY(show("WSvgSplitButton { property bool rtl; LayoutMirroring.enabled: rtl; "
                 "LayoutMirroring.childrenInherit: true; leftButton.text: 'Share'; width: 200; spiltWidth: 3 }"));
    root()->setProperty("rtl", mirrored);
    root()->setProperty("separator", separator);
    const auto *first = item(root(), mirrored ? "rightButton" : "leftButton");
    const auto *second = item(root(), mirrored ? "leftButton" : "rightButton");
    QTRY_COMPARE(sceneX(first), 0.0);
    QTRY_COMPARE(sceneX(second), first->width() + (separator ? 3 : 0));
    QCOMPARE(sceneX(second) + second->width(), root()->width());
    QCOMPARE(item(first, "background")->property("edge").toInt(), 0); // round on the left
    QCOMPARE(item(second, "background")->property("edge").toInt(), 1);
    QCOMPARE(item(second, "background")->property("borderLeft").toBool(), false);
    QCOMPARE(item(second, "background")->property("borderRight").toBool(), true);
    root()->setProperty("border", false);
    QCOMPARE(item(second, "background")->property("borderRight").toBool(), false);
    QCOMPARE(item(second, "background")->property("borderTop").toBool(), false);
}

void tst_Buttons::arrowsMoveInASplitButton_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<int>("forth");
    QTest::addColumn<int>("back");
    QTest::newRow("WSvgSplitButton") << QByteArray("WSvgSplitButton {}") << int(Qt::Key_Right) << int(Qt::Key_Left);
    QTest::newRow("mirrored") << QByteArray("WSvgSplitButton { LayoutMirroring.enabled: true; "
                                            "LayoutMirroring.childrenInherit: true }")
                              << int(Qt::Key_Left) << int(Qt::Key_Right);
    QTest::newRow("WSvgSplitIconButton") << QByteArray("WSvgSplitIconButton {}") << int(Qt::Key_Right)
                                         << int(Qt::Key_Left);
    QTest::newRow("one above the other") << QByteArray("WSvgSplitIconButton { horizontalLayout: false }")
                                         << int(Qt::Key_Down) << int(Qt::Key_Up);
    QTest::newRow("one tab stop") << QByteArray("WSvgSplitIconButton { processTabFocus: false }") << int(Qt::Key_Right)
                                  << int(Qt::Key_Left);
}

void tst_Buttons::arrowsMoveInASplitButton()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const int, forth);
    QFETCH(const int, back);
    QVERIFY(show(qml));
    item(root(), "leftButton")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key(back));
    QVERIFY(item(root(), "leftButton")->hasActiveFocus());
    press(Qt::Key(forth));
    QVERIFY(item(root(), "rightButton")->hasActiveFocus());
    press(Qt::Key(back));
    QVERIFY(item(root(), "leftButton")->hasActiveFocus());
}

void tst_Buttons::splitButtonHasARingOfItsShape()
{
    QVERIFY(show("WSvgSplitButton { leftButton.text: 'Share' }"));
    QQuickItem *left = item(root(), "leftButton");
    const auto rings = [&] { return itemsWith(left, "topLeftRadius"); };
    click(left);
    QCOMPARE(rings().size(), 0); // the mouse shows none
    item(root(), "rightButton")->forceActiveFocus(Qt::TabFocusReason);
    left->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(rings().size(), 1);
    const QQuickItem *ring = rings().constFirst();
    QCOMPARE(ring->size(), left->size() + QSizeF(8, 8));
    QCOMPARE(ring->property("topLeftRadius").toReal(), ring->height() / 2);
    QCOMPARE(ring->property("topRightRadius").toReal(), 0.0);
    QCOMPARE(color(ring, "color").alpha(), 0);
    QCOMPARE(QQmlProperty::read(ring, u"border.color"_s).value<QColor>(),
             application()->getColorSet(u"global-focus-outline"_s).normal);
    press(Qt::Key_Tab);
    QCOMPARE(rings().size(), 0);
}

void tst_Buttons::splitButtonStaysDown()
{
    QVERIFY(show("WSvgSplitButton { leftButton.text: 'Share' }"));
    const WColorSet background = application()->getColorSet(u"dualbutton-standard-button-background"_s);
    root()->setProperty("rightChecked", true);
    moveMouseAway();
    QTRY_COMPARE(color(item(root(), "rightButton"), "colour"), background.checked);
    QCOMPARE(color(item(root(), "leftButton"), "colour"), background.normal);
    QCOMPARE(root()->property("leftChecked").toBool(), false);
}

void tst_Buttons::tabStopsOfASplitIconButton_data()
{
    QTest::addColumn<bool>("processTabFocus");
    QTest::newRow("both") << true;
    QTest::newRow("one") << false;
}

void tst_Buttons::tabStopsOfASplitIconButton()
{
    QFETCH(const bool, processTabFocus);
    QVERIFY(show("Column { WSvgSplitIconButton { objectName: 'split' } WButton { objectName: 'after' } }"));
    auto *split = find(u"split"_s);
    split->setProperty("processTabFocus", processTabFocus);
    item(split, "leftButton")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Tab);
    QCOMPARE(item(split, "rightButton")->hasActiveFocus(), processTabFocus);
    QCOMPARE(find(u"after"_s)->hasActiveFocus(), !processTabFocus);
}

void tst_Buttons::layoutOfASplitIconButton()
{
    QVERIFY(show("WSvgSplitIconButton { leftButton.iconName: 'zoom-in'; rightButton.iconName: 'zoom-out' }"));
    const auto *left = item(root(), "leftButton");
    const auto *right = item(root(), "rightButton");
    QCOMPARE(left->y(), right->y());
    QCOMPARE_GT(right->x(), left->x() + left->width());
    const double height = root()->implicitHeight();
    root()->setProperty("contentPadding", 6);
    QCOMPARE(root()->implicitHeight(), height + 2 * (6 - 2));
    root()->setProperty("horizontalLayout", false);
    QTRY_COMPARE(left->x(), right->x());
    QCOMPARE_GT(right->y(), left->y() + left->height());
    QCOMPARE_GT(root()->implicitHeight(), root()->implicitWidth());
}

void tst_Buttons::peopleAreSummedUp_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("summary");
    QTest::newRow("nobody") << QStringList() << 3 << QString();
    QTest::newRow("one") << QStringList{u"Anna"_s} << 3 << u"Anna"_s;
    QTest::newRow("as many as are shown") << QStringList{u"A"_s, u"B"_s} << 2 << u"A, B"_s;
    QTest::newRow("more") << QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s} << 2 << u"A, B +2"_s;
    QTest::newRow("markup stays text") << QStringList{u"<b>A</b>"_s} << 3 << u"<b>A</b>"_s;
}

void tst_Buttons::peopleAreSummedUp()
{
    QFETCH(const QStringList, names);
    QFETCH(const int, maximum);
    QFETCH(const QString, summary);
    QVERIFY(show("PeopleSummaryBricklet { text: 'Team' }"));
    root()->setProperty("names", names);
    root()->setProperty("maximumNames", maximum);
    QCOMPARE(root()->property("summary").toString(), summary);
    QCOMPARE(QAccessible::queryAccessibleInterface(root())->text(QAccessible::Name),
             summary.isEmpty() ? u"Team"_s : u"Team, "_s + summary);
    const auto texts = itemsWith(root(), "truncated");
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts[1]->property("text").toString(), summary);
    QCOMPARE(texts[1]->isVisible(), !summary.isEmpty());
}

void tst_Buttons::noListOfPeopleIsAnEmptyOne()
{
    QVERIFY(show("PeopleSummaryBricklet { text: 'Team'; names: ['A'] }"));
    root()->setProperty("names", QVariant::fromValue(nullptr));
    QCOMPARE(root()->property("summary").toString(), QString());
    root()->setProperty("names", QVariant());
    QCOMPARE(root()->property("summary").toString(), QString());
}

void tst_Buttons::peopleRowIsMadeCurrent()
{
    QVERIFY(show("ListView { width: 300; height: 200; model: ['Red', 'Green', 'Blue']; "
                 "delegate: PeopleSummaryBricklet { required property string modelData; text: modelData } }"));
    const auto row = [&](int index) { return rowOf(root(), index); };
    QTRY_VERIFY(row(2));
    QCOMPARE(row(2)->width(), 300.0);
    QCOMPARE(row(0)->property("isCurrentItem").toBool(), true);
    QSignalSpy triggered(row(2), SIGNAL(triggered()));
    click(row(2));
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(root()->property("currentIndex").toInt(), 2);
    QCOMPARE(row(0)->property("isCurrentItem").toBool(), false);
    QVERIFY(QAccessible::queryAccessibleInterface(row(2))->state().selected);
    moveMouseAway();
    QTRY_COMPARE(color(row(2), "colour"), application()->getColorSet(u"listitem-background"_s).checked);
}

void tst_Buttons::disabledPeopleRowIsDimmed()
{
    QVERIFY(show("PeopleSummaryBricklet { text: 'Team'; names: ['A'] }"));
    const auto texts = itemsWith(root(), "truncated");
    const WColorSet primary = application()->getColorSet(u"listitem-textprimary"_s);
    const WColorSet secondary = application()->getColorSet(u"listitem-textsecondary"_s);
    QCOMPARE(color(texts[0], "color"), primary.normal);
    QCOMPARE(color(texts[1], "color"), secondary.normal);
    root()->setEnabled(false);
    QCOMPARE(color(texts[0], "color"), primary.disabled);
    QCOMPARE(color(texts[1], "color"), secondary.disabled);
}

void tst_Buttons::peopleRowFollowsItsStateInHighContrast()
{
    QVERIFY(show("PeopleSummaryBricklet { text: 'Team'; names: ['A']; enabled: false; "
                 "textPrimaryNormal: App.getColorSet('label-error-text').normal }"));
    const auto *title = itemsWith(root(), "truncated").constFirst();
    QCOMPARE(color(title, "color"), application()->getColorSet(u"label-error-text"_s).normal);
    application()->setThemeMode(u"highcontrast"_s);
    QCOMPARE(color(title, "color"), application()->getColorSet(u"listitem-textprimary"_s).disabled);
}

void tst_Buttons::repeatedReleasesOfOtherKeysGoOn()
{
    QVERIFY(show("Item { id: around; width: 200; height: 80; property int releases: 0\n"
                 "Keys.onReleased: event => { if (event.isAutoRepeat) ++releases }\n"
                 "Column { WButton { objectName: 'button' } WCheckBox { objectName: 'box' } } }"));
    for (const QString &name : {u"button"_s, u"box"_s}) {
        find(name)->forceActiveFocus();
        root()->setProperty("releases", 0);
        for (const auto &[key, releases] : {std::pair(Qt::Key_Space, 0), {Qt::Key_A, 1}}) {
            QKeyEvent event(QEvent::KeyRelease, key, Qt::NoModifier, {}, true);
            QCoreApplication::sendEvent(window(), &event);
            QCOMPARE(root()->property("releases").toInt(), releases);
        }
    }
}

LUMAKIT_TEST_MAIN(tst_Buttons)
#include "tst_buttons.moc"
