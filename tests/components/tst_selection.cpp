#include <ComponentTest.h>

#include <QAccessible>
#include <QQmlProperty>

#include <algorithm>

using namespace Qt::StringLiterals;

class tst_Selection : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void toggles_data();
    void toggles();
    void heldKeyTogglesOnce_data();
    void heldKeyTogglesOnce();
    void toggleAccessibility_data();
    void toggleAccessibility();
    void toggleColours_data();
    void toggleColours();
    void toggleGeometry_data();
    void toggleGeometry();
    void aLongTextWraps_data();
    void aLongTextWraps();
    void checkBoxShowsItsState_data();
    void checkBoxShowsItsState();
    void checkBoxGoesThroughThreeStates();
    void switchHasAnotherNameForChecked();
    void switchMovesItsThumb_data();
    void switchMovesItsThumb();

    void sliderByKeyboard_data();
    void sliderByKeyboard();
    void sliderGoesInHundredths();
    void sliderByWheel();
    void sliderByMouse_data();
    void sliderByMouse();
    void sliderHandleStandsAtTheValue_data();
    void sliderHandleStandsAtTheValue();
    void sliderShowsItsValue_data();
    void sliderShowsItsValue();
    void sliderColours();
    void sliderAccessibility();
    void sliderMakesNothingBeforeItIsNeeded_data();
    void sliderMakesNothingBeforeItIsNeeded();
    void sliderDefaultsFollow_data();
    void sliderDefaultsFollow();
    void sliderKeepsWhatItIsGiven_data();
    void sliderKeepsWhatItIsGiven();
    void sliderTakesAnotherHandle();

    void comboBoxClosedByKeyboard_data();
    void comboBoxClosedByKeyboard();
    void comboBoxOpens_data();
    void comboBoxOpens();
    void comboBoxOpenByKeyboard_data();
    void comboBoxOpenByKeyboard();
    void comboBoxByMouse();
    void comboBoxClosesWhenDisabled();
    void comboBoxTexts_data();
    void comboBoxTexts();
    void comboBoxMarksTheChosenRow();
    void comboBoxScrollsALongList();
    void comboBoxRowsStandClearOfTheBar_data();
    void comboBoxRowsStandClearOfTheBar();
    void comboBoxListDoesNotCoverTheBox_data();
    void comboBoxListDoesNotCoverTheBox();
    void comboBoxColours();
    void comboBoxCanBeEdited();
    void comboBoxMirrors();
    void comboBoxAccessibility();

private:
    static QColor color(const QObject *object, const char *property)
    {
        return object->property(property).value<QColor>();
    }

    static QQuickItem *item(const QObject *object, const char *property)
    {
        return object->property(property).value<QQuickItem *>();
    }

    static QObject *popup(const QObject *object) { return object->property("popup").value<QObject *>(); }

    /// The children, however deep, that have the property.
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

    QQuickItem *row(int index) const
    {
        QQuickItem *found = nullptr;
        QMetaObject::invokeMethod(item(popup(root()), "contentItem"), "itemAtIndex", Q_RETURN_ARG(QQuickItem *, found),
                                  Q_ARG(int, index));
        return found;
    }
};

void tst_Selection::toggles_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("count");
    for (const QByteArray type : {"WCheckBox", "WSwitch"}) {
        QTest::newRow(type + " by mouse") << type << 0 << 1;
        QTest::newRow(type + " by Space") << type << int(Qt::Key_Space) << 1;
        QTest::newRow(type + " by Return") << type << int(Qt::Key_Return) << 1;
        QTest::newRow(type + " by Enter") << type << int(Qt::Key_Enter) << 1;
        QTest::newRow(type + ", another key") << type << int(Qt::Key_X) << 0;
    }
}

void tst_Selection::toggles()
{
    QFETCH(const QByteArray, type);
    QFETCH(const int, key);
    QFETCH(const int, count);
    QVERIFY(show("Item { " + type + " { objectName: 'control'; text: 'Check' } }"));
    auto *control = find(u"control"_s);
    QSignalSpy toggled(control, SIGNAL(toggled()));
    press(Qt::Key_Tab);
    QVERIFY(control->hasActiveFocus());
    const auto toggle = [&] {
        if (key)
            press(Qt::Key(key));
        else
            click(control);
    };
    toggle();
    QCOMPARE(toggled.count(), count);
    QCOMPARE(control->property("checked").toBool(), count == 1);
    toggle();
    QCOMPARE(toggled.count(), 2 * count);
    QCOMPARE(control->property("checked").toBool(), false);
    control->setEnabled(false);
    toggle();
    QCOMPARE(toggled.count(), 2 * count);
}

void tst_Selection::heldKeyTogglesOnce_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<int>("key");
    for (const QByteArray type : {"WCheckBox", "WSwitch"}) {
        QTest::newRow(type + ", Space") << type << int(Qt::Key_Space);
        QTest::newRow(type + ", Return") << type << int(Qt::Key_Return);
        QTest::newRow(type + ", Enter") << type << int(Qt::Key_Enter);
    }
}

void tst_Selection::heldKeyTogglesOnce()
{
    QFETCH(const QByteArray, type);
    QFETCH(const int, key);
    QVERIFY(show("Item { " + type + " { objectName: 'control'; text: 'Check' } }"));
    QSignalSpy toggled(find(u"control"_s), SIGNAL(toggled()));
    press(Qt::Key_Tab);
    QTest::keyPress(window(), Qt::Key(key));
    for (const QEvent::Type repeat : {QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeated(repeat, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(window(), &repeated);
    }
    QTest::keyRelease(window(), Qt::Key(key));
    QCOMPARE(toggled.count(), 1);
}

void tst_Selection::toggleAccessibility_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QString>("name");
    QTest::newRow("WCheckBox") << QByteArray("WCheckBox { text: 'Check' }") << u"Check"_s;
    QTest::newRow("WCheckBox without a text") << QByteArray("WCheckBox { tooltip: 'Tip' }") << u"Tip"_s;
    QTest::newRow("WSwitch") << QByteArray("WSwitch { text: 'Turn on' }") << u"Turn on"_s;
    QTest::newRow("WSwitch without a text") << QByteArray("WSwitch { tooltip: 'Tip' }") << u"Tip"_s;
}

void tst_Selection::toggleAccessibility()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QString, name);
    QVERIFY(show(qml));
    QAccessible::setActive(true); // makes the controls tell their state
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(root());
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::CheckBox);
    QCOMPARE(interface->text(QAccessible::Name), name);
    QVERIFY(interface->state().checkable);
    QVERIFY(!interface->state().checked);
    QSignalSpy toggled(root(), SIGNAL(toggled()));
    interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(toggled.count(), 1);
    QAccessible::setActive(true);
    QVERIFY(interface->state().checked);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(toggled.count(), 2);
    QAccessible::setActive(true);
    QVERIFY(!interface->state().checked);
}

void tst_Selection::toggleColours_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("token");
    for (const char *state : {"normal", "hovered", "disabled"}) {
        const QString name = QString::fromLatin1(state);
        const QByteArray end = QByteArray(", ") + state;
        QTest::newRow("empty box" + end) << QByteArray("WCheckBox") << false << name << u"checkbox-unchecked-"_s;
        QTest::newRow("checked box" + end) << QByteArray("WCheckBox") << true << name << u"checkbox-checked-"_s;
        QTest::newRow("switch that is off" + end) << QByteArray("WSwitch") << false << name << u"toggle-untoggled-"_s;
        QTest::newRow("switch that is on" + end) << QByteArray("WSwitch") << true << name << u"toggle-toggled-"_s;
    }
}

void tst_Selection::toggleColours()
{
    QFETCH(const QByteArray, type);
    QFETCH(const bool, checked);
    QFETCH(const QString, state);
    QFETCH(const QString, token);
    QVERIFY(
        show("Item { width: 200; height: 100; " + type + " { objectName: 'control'; x: 40; y: 40; text: 'Check' } }"));
    auto *control = find(u"control"_s);
    control->setProperty("checked", checked);
    control->setEnabled(state != "disabled"_L1);
    moveMouseAway();
    if (state == "hovered"_L1)
        moveMouseTo(control);
    const auto *indicator = item(control, "indicator");
    const WColorSet background = application()->getColorSet(token + u"background"_s);
    QTRY_COMPARE(color(indicator, "color"), background.getColor(state));
    QCOMPARE(QQmlProperty::read(indicator, u"border.color"_s).value<QColor>(),
             application()->getColorSet(token + u"border"_s).getColor(state));
    application()->setThemeMode(u"dark"_s);
    QCOMPARE(color(indicator, "color"), application()->getColorSet(token + u"background"_s).getColor(state));
}

void tst_Selection::toggleGeometry_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("mirrored");
    for (const QByteArray type : {"WCheckBox", "WSwitch"}) {
        QTest::newRow(type) << type << false;
        QTest::newRow(type + ", mirrored") << type << true;
    }
}

void tst_Selection::toggleGeometry()
{
    QFETCH(const QByteArray, type);
    QFETCH(const bool, mirrored);
    QVERIFY(show(type
                 + " { property bool rtl; LayoutMirroring.enabled: rtl; LayoutMirroring.childrenInherit: true; "
                   "text: 'Check'; spacing: 10 }"));
    root()->setProperty("rtl", mirrored);
    const auto *indicator = item(root(), "indicator");
    const auto *text = item(root(), "contentItem");
    QCOMPARE(indicator->x(), mirrored ? root()->width() - indicator->width() : 0.0);
    QCOMPARE(indicator->y(), std::round((root()->height() - indicator->height()) / 2));
    QCOMPARE(text->property(mirrored ? "rightPadding" : "leftPadding").toReal(), indicator->width() + 10);
    QCOMPARE(text->property(mirrored ? "leftPadding" : "rightPadding").toReal(), 0.0);
    if (type == "WCheckBox") {
        root()->setProperty("checkboxSize", 40);
        root()->setProperty("checkboxRadius", 8);
        QCOMPARE(indicator->size(), QSizeF(40, 40));
        QCOMPARE(indicator->property("radius").toReal(), 8.0);
    } else {
        root()->setProperty("backgroundWidth", 60);
        root()->setProperty("backgroundHeight", 32);
        QCOMPARE(indicator->size(), QSizeF(60, 32));
    }
    QCOMPARE_GE(root()->implicitHeight(), indicator->height());
}

void tst_Selection::aLongTextWraps_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("WCheckBox") << QByteArray("WCheckBox");
    QTest::newRow("WSwitch") << QByteArray("WSwitch");
}

void tst_Selection::aLongTextWraps()
{
    QFETCH(const QByteArray, type);
    QVERIFY(show(type + " { text: 'Benachrichtigungen auch bei gesperrtem Bildschirm anzeigen' }"));
    const double height = root()->implicitHeight();
    QCOMPARE(item(root(), "contentItem")->property("lineCount").toInt(), 1);
    root()->setWidth(200);
    QTRY_COMPARE_GT(item(root(), "contentItem")->property("lineCount").toInt(), 1);
    QTRY_COMPARE_GT(root()->implicitHeight(), height);
}

void tst_Selection::checkBoxShowsItsState_data()
{
    QTest::addColumn<Qt::CheckState>("state");
    QTest::addColumn<QString>("icon");
    QTest::newRow("empty") << Qt::Unchecked << QString();
    QTest::newRow("checked") << Qt::Checked << u"check-bold"_s;
    QTest::newRow("partially") << Qt::PartiallyChecked << u"minus-bold"_s;
}

void tst_Selection::checkBoxShowsItsState()
{
    QFETCH(const Qt::CheckState, state);
    QFETCH(const QString, icon);
    QVERIFY(show("WCheckBox { tristate: true }"));
    root()->setProperty("checkState", state);
    const auto icons = itemsWith(item(root(), "indicator"), "svgName");
    QCOMPARE(icons.size(), icon.isEmpty() ? 0 : 1);
    for (const QQuickItem *shown : icons) {
        QCOMPARE(shown->property("svgName").toString(), icon);
        const QString iconColor = application()->getColorSet(u"checkbox-checked-icon"_s).normal.name();
        QCOMPARE(shown->property("source").toUrl().toString(), u"image://svg/%1/%2"_s.arg(iconColor, icon));
    }
    root()->setProperty("checkIconName", u"star"_s);
    for (const QQuickItem *shown : icons)
        QCOMPARE(shown->property("svgName").toString(), u"star"_s);
}

void tst_Selection::checkBoxGoesThroughThreeStates()
{
    QVERIFY(show("WCheckBox { tristate: true; text: 'All' }"));
    for (const Qt::CheckState state : {Qt::PartiallyChecked, Qt::Checked, Qt::Unchecked}) {
        click(root());
        QCOMPARE(root()->property("checkState").value<Qt::CheckState>(), state);
    }
}

void tst_Selection::switchHasAnotherNameForChecked()
{
    QVERIFY(show("WSwitch { text: 'Turn on'; property bool bound: aChecked }"));
    click(root());
    QCOMPARE(root()->property("aChecked").toBool(), true);
    QCOMPARE(root()->property("bound").toBool(), true);
    root()->setProperty("aChecked", false);
    QCOMPARE(root()->property("checked").toBool(), false);
    QCOMPARE(root()->property("bound").toBool(), false);
}

void tst_Selection::switchMovesItsThumb_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("animated");
    QTest::newRow("animated") << false << true;
    QTest::newRow("at once") << false << false;
    QTest::newRow("mirrored") << true << false;
}

void tst_Selection::switchMovesItsThumb()
{
    QFETCH(const bool, mirrored);
    QFETCH(const bool, animated);
    application()->setAnimationsDisabled(!animated);
    QVERIFY(show("WSwitch { property bool rtl; LayoutMirroring.enabled: rtl; LayoutMirroring.childrenInherit: true; "
                 "text: 'Turn on'; backgroundWidth: 40; backgroundHeight: 24; indicatorDiameter: 16 }"));
    root()->setProperty("rtl", mirrored);
    const auto *thumb = item(root(), "indicator")->childItems().constFirst();
    QCOMPARE(thumb->size(), QSizeF(16, 16));
    QTRY_COMPARE(thumb->x(), mirrored ? 20.0 : 4.0);
    QCOMPARE(thumb->y(), 4.0);
    root()->setProperty("checked", true);
    const double end = mirrored ? 4.0 : 20.0;
    QCOMPARE(thumb->x() == end, !animated);
    QTRY_COMPARE(thumb->x(), end);
}

void tst_Selection::sliderByKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<double>("value");
    QTest::newRow("right") << int(Qt::Key_Right) << false << 42.0;
    QTest::newRow("left") << int(Qt::Key_Left) << false << 38.0;
    QTest::newRow("right, mirrored") << int(Qt::Key_Right) << true << 38.0;
    QTest::newRow("left, mirrored") << int(Qt::Key_Left) << true << 42.0;
    QTest::newRow("home") << int(Qt::Key_Home) << false << 0.0;
    QTest::newRow("end") << int(Qt::Key_End) << false << 100.0;
    QTest::newRow("page up") << int(Qt::Key_PageUp) << false << 50.0;
    QTest::newRow("page down") << int(Qt::Key_PageDown) << false << 30.0;
    QTest::newRow("up") << int(Qt::Key_Up) << false << 42.0;
    QTest::newRow("down") << int(Qt::Key_Down) << false << 38.0;
    QTest::newRow("up, mirrored") << int(Qt::Key_Up) << true << 42.0;
    QTest::newRow("another key") << int(Qt::Key_A) << false << 40.0;
}

void tst_Selection::sliderByKeyboard()
{
    QFETCH(const int, key);
    QFETCH(const bool, mirrored);
    QFETCH(const double, value);
    QVERIFY(show("WSlider { property bool rtl; property real bound: 40; LayoutMirroring.enabled: rtl; to: 100; "
                 "stepSize: 2; value: bound }"));
    root()->setProperty("rtl", mirrored);
    QSignalSpy moved(root(), SIGNAL(moved()));
    press(Qt::Key_Tab);
    QVERIFY(root()->hasActiveFocus());
    press(Qt::Key(key));
    QCOMPARE(root()->property("value").toReal(), value);
    QCOMPARE(moved.count(), value == 40 ? 0 : 1);
    root()->setProperty("bound", 99.0); // the binding is still there
    press(Qt::Key_PageUp); // no further than the end
    QCOMPARE(root()->property("value").toReal(), 100.0);
    root()->setEnabled(false);
    press(Qt::Key_Home);
    QCOMPARE(root()->property("value").toReal(), 100.0);
}

void tst_Selection::sliderGoesInHundredths()
{
    QVERIFY(show("WSlider { from: -1; to: 1; value: 0.5 }"));
    press(Qt::Key_Tab);
    press(Qt::Key_Right);
    QCOMPARE(root()->property("value").toReal(), 0.52);
    press(Qt::Key_PageDown);
    QCOMPARE(root()->property("value").toReal(), 0.32);
}

void tst_Selection::sliderByWheel()
{
    QVERIFY(show("WSlider { to: 100; stepSize: 2; value: 40 }"));
    QSignalSpy moved(root(), SIGNAL(moved()));
    QTest::wheelEvent(window(), QPointF(20, root()->height() / 2), {0, 120});
    QCOMPARE(root()->property("value").toReal(), 42.0);
    QTest::wheelEvent(window(), QPointF(20, root()->height() / 2), {0, -240});
    QCOMPARE(root()->property("value").toReal(), 38.0);
    QCOMPARE(moved.count(), 2);
}

void tst_Selection::sliderByMouse_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<double>("value");
    // 100 pixels of way for the handle's centre.
    QTest::newRow("horizontal") << QByteArray("width: 124") << QPointF(12, 12) << QPointF(42, 12) << 30.0;
    QTest::newRow("mirrored") << QByteArray("width: 124; LayoutMirroring.enabled: true") << QPointF(112, 12)
                              << QPointF(82, 12) << 30.0;
    QTest::newRow("vertical") << QByteArray("height: 124; orientation: Qt.Vertical") << QPointF(12, 112)
                              << QPointF(12, 82) << 30.0;
}

void tst_Selection::sliderByMouse()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QPointF, from);
    QFETCH(const QPointF, to);
    QFETCH(const double, value);
    QVERIFY(show("WSlider { to: 100; handleWidth: 16; padding: 4; " + properties + " }"));
    QSignalSpy moved(root(), SIGNAL(moved()));
    QTest::mousePress(window(), Qt::LeftButton, {}, from.toPoint());
    QTest::mouseMove(window(), ((from + to) / 2).toPoint());
    QTest::mouseMove(window(), to.toPoint());
    QCOMPARE_GE(moved.count(), 1);
    QTest::mouseRelease(window(), Qt::LeftButton, {}, to.toPoint());
    QCOMPARE_LE(std::abs(root()->property("value").toReal() - value), 1.5);
}

void tst_Selection::sliderHandleStandsAtTheValue_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<QRectF>("full");
    QTest::newRow("horizontal") << QByteArray("width: 124; height: 24") << QPointF(29, 4) << QRectF(0, 0, 29, 4);
    QTest::newRow("mirrored") << QByteArray("width: 124; height: 24; LayoutMirroring.enabled: true") << QPointF(79, 4)
                              << QRectF(87, 0, 29, 4);
    QTest::newRow("vertical") << QByteArray("width: 24; height: 124; orientation: Qt.Vertical") << QPointF(4, 79)
                              << QRectF(0, 87, 4, 29);
}

void tst_Selection::sliderHandleStandsAtTheValue()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QPointF, position);
    QFETCH(const QRectF, full);
    QVERIFY(show("WSlider { value: 0.25; handleWidth: 16; barThickness: 4; padding: 4; " + properties + " }"));
    const auto *handle = item(root(), "sliderHandle");
    QCOMPARE(handle, item(root(), "handle"));
    QCOMPARE(handle->position(), position);
    QCOMPARE(handle->size(), QSizeF(16, 16));
    QCOMPARE(root()->property("isHorizontal").toBool(), full.width() > full.height());
    const auto *bar = item(root(), "background")->childItems().constFirst();
    QCOMPARE(QRectF(bar->position(), bar->size()), full);
    root()->setProperty("handleRadius", 3);
    QCOMPARE(handle->property("radius").toReal(), 3.0);
}

void tst_Selection::sliderShowsItsValue_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole numbers") << QByteArray("to: 100; value: 33.4") << u"33"_s;
    QTest::newRow("two decimals") << QByteArray("value: 0.5") << u"0.50"_s;
    QTest::newRow("decimals asked for") << QByteArray("value: 0.5; decimals: 1") << u"0.5"_s;
    QTest::newRow("the host's text") << QByteArray("value: 0.5; tooltip: 'Half'") << u"Half"_s;
    QTest::newRow("none") << QByteArray("value: 0.5; tooltip: ''") << QString();
}

void tst_Selection::sliderShowsItsValue()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, text);
    QVERIFY(show("Item { width: 300; height: 200; WSlider { objectName: 'slider'; locale: Qt.locale('C'); x: 40; "
                 "y: 100; "
                 + properties + " } }"));
    auto *slider = find(u"slider"_s);
    const auto shown = [&]() -> QString {
        for (const QObject *child : item(slider, "handle")->findChildren<QObject *>()) {
            if (child->inherits("QQuickToolTip") && child->property("visible").toBool())
                return child->property("text").toString();
        }
        return {};
    };
    QCOMPARE(shown(), QString());
    const QPoint handle = item(slider, "handle")->mapToScene({8, 8}).toPoint();
    QTest::mousePress(window(), Qt::LeftButton, {}, handle);
    QTRY_COMPARE(shown(), text);
    QTest::mouseRelease(window(), Qt::LeftButton, {}, handle);
    QTRY_COMPARE(shown(), QString());
    slider->setFocus(false);
    press(Qt::Key_Tab);
    QTRY_COMPARE(shown(), text);
    slider->setFocus(false);
    QTRY_COMPARE(shown(), QString());
}

void tst_Selection::sliderColours()
{
    QVERIFY(show("WSlider {}"));
    const auto colorOf = [](const char *token) { return application()->getColorSet(QString::fromLatin1(token)); };
    const auto *bar = item(root(), "background");
    QCOMPARE(color(bar, "color"), colorOf("spinner-progress-track").normal);
    QCOMPARE(color(bar->childItems().constFirst(), "color"), colorOf("toggle-toggled-background").normal);
    QCOMPARE(color(item(root(), "handle"), "color"), colorOf("toggle-toggled-background").normal);
    root()->setEnabled(false);
    QCOMPARE(color(item(root(), "handle"), "color"), colorOf("toggle-toggled-background").disabled);
    root()->setProperty("sliderEmptyColorSetName", u"separator-secondary"_s);
    QCOMPARE(color(bar, "color"), colorOf("separator-secondary").disabled);
}

void tst_Selection::sliderAccessibility()
{
    QVERIFY(show("WSlider { from: 10; to: 20; value: 15; stepSize: 1; Accessible.name: 'Volume' }"));
    QAccessible::setActive(true); // makes the controls tell their state
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(root());
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Slider);
    QCOMPARE(interface->text(QAccessible::Name), u"Volume"_s);
    QVERIFY(interface->valueInterface());
    QCOMPARE(interface->valueInterface()->currentValue().toReal(), 15.0);
    QCOMPARE(interface->valueInterface()->minimumValue().toReal(), 10.0);
    QCOMPARE(interface->valueInterface()->maximumValue().toReal(), 20.0);
    interface->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QCOMPARE(root()->property("value").toReal(), 16.0);
}

void tst_Selection::sliderMakesNothingBeforeItIsNeeded_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("WSlider") << QByteArray("WSlider");
    QTest::newRow("LKSlider") << QByteArray("LKSlider");
}

void tst_Selection::sliderMakesNothingBeforeItIsNeeded()
{
    QFETCH(const QByteArray, type);
    QVERIFY(show("Item { WButton { text: 'Other' } " + type + " { objectName: 'slider'; to: 10 } }"));
    auto *slider = find(u"slider"_s);
    const auto counts = [slider](const char *kind) {
        const auto objects = slider->findChildren<QObject *>();
        return std::ranges::count_if(objects, [kind](const QObject *object) { return object->inherits(kind); });
    };
    // The handle, the bar and what is full of it.
    QCOMPARE(counts("QQuickItem"), 3);
    for (const char *kind : {"FocusRing", "QQuickToolTip", "QQmlComponent", "QQuickLoader"})
        QCOMPARE(counts(kind), 0);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    QVERIFY(slider->hasActiveFocus());
    QCOMPARE(counts("FocusRing"), 1);
    QTRY_COMPARE(counts("QQuickToolTip"), 1);
    // The ring goes around the handle.
    const auto around = item(slider, "handle")->childItems();
    QVERIFY(std::ranges::any_of(around, [](const QQuickItem *ring) { return ring->inherits("QQuickPaintedItem"); }));
    press(Qt::Key_Tab);
    QTRY_COMPARE(counts("QQuickToolTip"), 0);
}

void tst_Selection::sliderDefaultsFollow_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after"); // with a range from 0 to 200
    QTest::newRow("step size") << QByteArray("stepSize") << QVariant(0.01) << QVariant(2.0);
    QTest::newRow("step of an arrow") << QByteArray("keyStep") << QVariant(0.01) << QVariant(2.0);
    QTest::newRow("page") << QByteArray("pageSize") << QVariant(0.1) << QVariant(20.0);
    QTest::newRow("decimals") << QByteArray("decimals") << QVariant(2) << QVariant(0);
    QTest::newRow("tooltip") << QByteArray("tooltip") << QVariant(u"0.50"_s) << QVariant(u"1"_s);
    QTest::newRow("end of the range") << QByteArray("maximumValue") << QVariant(1.0) << QVariant(200.0);
}

void tst_Selection::sliderDefaultsFollow()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, before);
    QFETCH(const QVariant, after);
    QVERIFY(show("WSlider { id: slider; locale: Qt.locale('C'); value: 0.5; property var bound: slider." + property
                 + " }"));
    QCOMPARE(root()->property(property), before);
    QCOMPARE(root()->property("bound"), before);
    root()->setProperty("value", 0.6);
    root()->setProperty("to", 200);
    QCOMPARE(root()->property(property), after);
    QCOMPARE(root()->property("bound"), after);
}

void tst_Selection::sliderKeepsWhatItIsGiven_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("step size") << QByteArray("stepSize: 3") << QByteArray("stepSize") << QVariant(3.0);
    QTest::newRow("that of the usual range")
        << QByteArray("stepSize: 0.01") << QByteArray("stepSize") << QVariant(0.01);
    QTest::newRow("no step size") << QByteArray("stepSize: 0") << QByteArray("stepSize") << QVariant(0.0);
    QTest::newRow("step of an arrow") << QByteArray("keyStep: 7") << QByteArray("keyStep") << QVariant(7.0);
    QTest::newRow("page") << QByteArray("pageSize: 7") << QByteArray("pageSize") << QVariant(7.0);
    QTest::newRow("decimals") << QByteArray("decimals: 1") << QByteArray("decimals") << QVariant(1);
    QTest::newRow("tooltip") << QByteArray("tooltip: 'Loud'") << QByteArray("tooltip") << QVariant(u"Loud"_s);
    QTest::newRow("radius") << QByteArray("handleRadius: 2") << QByteArray("handleRadius") << QVariant(2.0);
    QTest::newRow("place") << QByteArray("handleX: 30") << QByteArray("handleX") << QVariant(30.0);
    QTest::newRow("width") << QByteArray("implicitWidth: 90") << QByteArray("implicitWidth") << QVariant(90.0);
    QTest::newRow("height") << QByteArray("implicitHeight: 50") << QByteArray("implicitHeight") << QVariant(50.0);
}

void tst_Selection::sliderKeepsWhatItIsGiven()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, value);
    QVERIFY(show("LKSlider { " + qml + "; to: 50; value: 20 }"));
    QCOMPARE(root()->property(property), value);
    root()->setProperty("to", 200);
    root()->setProperty("value", 30);
    root()->setProperty("handleWidth", 24);
    QCOMPARE(root()->property(property), value);
    if (property == "handleX")
        QCOMPARE(item(root(), "handle")->x(), 30.0);
}

void tst_Selection::sliderTakesAnotherHandle()
{
    QVERIFY(
        show("WSlider { id: slider; width: 124; value: 0.5; handle: Rectangle { x: slider.handleX; y: slider.handleY; "
             "width: 16; height: 16; color: 'red' } }"));
    const auto *handle = item(root(), "sliderHandle");
    QCOMPARE(color(handle, "color"), QColor(Qt::red));
    QCOMPARE(handle->position(), QPointF(54, 4));
    press(Qt::Key_Tab);
    const auto rings = handle->childItems();
    QVERIFY(std::ranges::any_of(rings, [](const QQuickItem *ring) { return ring->inherits("QQuickPaintedItem"); }));
    press(Qt::Key_Home);
    QCOMPARE(handle->position(), QPointF(4, 4));
    const auto *bar = item(root(), "background")->childItems().constFirst();
    QCOMPARE(bar->width(), 0.0);
}

namespace {
const QByteArray Fruit = "WComboBox { model: ['Apple', 'Banana', 'Blueberry', 'Cherry', 'Date', 'Elderberry', 'Fig', "
                         "'Grape', 'Honeydew', 'Kiwi', 'Lemon', 'Mango']; ";
}

void tst_Selection::comboBoxClosedByKeyboard_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("activated");
    QTest::newRow("down") << QList<int>{Qt::Key_Down} << 1 << 1;
    QTest::newRow("up at the first") << QList<int>{Qt::Key_Up} << 0 << 0;
    QTest::newRow("end") << QList<int>{Qt::Key_End} << 11 << 1;
    QTest::newRow("home") << QList<int>{Qt::Key_End, Qt::Key_Home} << 0 << 2;
    QTest::newRow("page down") << QList<int>{Qt::Key_PageDown} << 8 << 1;
    QTest::newRow("page down to the end") << QList<int>{Qt::Key_PageDown, Qt::Key_PageDown} << 11 << 2;
    QTest::newRow("page up") << QList<int>{Qt::Key_End, Qt::Key_PageUp} << 3 << 2;
    QTest::newRow("a letter") << QList<int>{Qt::Key_M} << 11 << 1;
    QTest::newRow("the same letter again") << QList<int>{Qt::Key_B, Qt::Key_B} << 2 << 2;
    QTest::newRow("a letter of none") << QList<int>{Qt::Key_Z} << 0 << 0;
}

void tst_Selection::comboBoxClosedByKeyboard()
{
    QFETCH(const QList<int>, keys);
    QFETCH(const int, index);
    QFETCH(const int, activated);
    QVERIFY(show(Fruit + "property int bound; currentIndex: bound }"));
    QSignalSpy activatedSpy(root(), SIGNAL(activated(int)));
    press(Qt::Key_Tab);
    QVERIFY(root()->hasActiveFocus());
    for (const int key : keys)
        press(Qt::Key(key));
    QCOMPARE(root()->property("currentIndex").toInt(), index);
    QCOMPARE(activatedSpy.count(), activated);
    QCOMPARE(popup(root())->property("visible").toBool(), false);
    root()->setProperty("bound", 5);
    QCOMPARE(root()->property("currentIndex").toInt(), 5); // the binding is still there
    root()->setEnabled(false);
    press(Qt::Key_Down);
    QCOMPARE(activatedSpy.count(), activated);
}

void tst_Selection::comboBoxOpens_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("space") << int(Qt::Key_Space) << Qt::KeyboardModifiers();
    QTest::newRow("return") << int(Qt::Key_Return) << Qt::KeyboardModifiers();
    QTest::newRow("enter") << int(Qt::Key_Enter) << Qt::KeyboardModifiers();
    QTest::newRow("F4") << int(Qt::Key_F4) << Qt::KeyboardModifiers();
    QTest::newRow("alt and down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("alt and up") << int(Qt::Key_Up) << Qt::KeyboardModifiers(Qt::AltModifier);
}

void tst_Selection::comboBoxOpens()
{
    QFETCH(const int, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QVERIFY(show(Fruit + "}"));
    QSignalSpy activated(root(), SIGNAL(activated(int)));
    press(Qt::Key_Tab);
    press(Qt::Key(key), modifiers);
    QTRY_COMPARE(popup(root())->property("opened").toBool(), true);
    press(Qt::Key_Escape);
    QTRY_COMPARE(popup(root())->property("visible").toBool(), false);
    QCOMPARE(root()->property("currentIndex").toInt(), 0);
    QCOMPARE(activated.count(), 0);
}

void tst_Selection::comboBoxOpenByKeyboard_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("index");
    QTest::newRow("down") << QList<int>{Qt::Key_Down} << 1;
    QTest::newRow("end") << QList<int>{Qt::Key_End} << 11;
    QTest::newRow("home") << QList<int>{Qt::Key_End, Qt::Key_Home} << 0;
    QTest::newRow("page down") << QList<int>{Qt::Key_PageDown} << 8;
    QTest::newRow("page up") << QList<int>{Qt::Key_End, Qt::Key_PageUp} << 3;
    QTest::newRow("a letter") << QList<int>{Qt::Key_C} << 3;
}

void tst_Selection::comboBoxOpenByKeyboard()
{
    QFETCH(const QList<int>, keys);
    QFETCH(const int, index);
    QVERIFY(show(Fruit + "}"));
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    QTRY_COMPARE(popup(root())->property("opened").toBool(), true);
    for (const int key : keys)
        press(Qt::Key(key));
    QCOMPARE(root()->property("highlightedIndex").toInt(), index);
    QTRY_VERIFY(row(index));
    press(Qt::Key_Return);
    QTRY_COMPARE(popup(root())->property("visible").toBool(), false);
    QCOMPARE(root()->property("currentIndex").toInt(), index);
}

void tst_Selection::comboBoxByMouse()
{
    QVERIFY(show(Fruit + "popupMaxHeight: 160 }"));
    QSignalSpy activated(root(), SIGNAL(activated(int)));
    click(root());
    QTRY_COMPARE(popup(root())->property("opened").toBool(), true);
    QTRY_VERIFY(row(2));
    const auto highlights = [&](int index) {
        moveMouseTo(row(index));
        return root()->property("highlightedIndex").toInt() == index;
    };
    QTRY_VERIFY(highlights(2)); // the list may still be on its way
    QCOMPARE(color(item(row(2), "background"), "color"), color(root(), "delegateItemHighlightColor"));
    click(row(2));
    QTRY_COMPARE(popup(root())->property("visible").toBool(), false);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated[0][0].toInt(), 2);
    QCOMPARE(root()->property("displayText").toString(), u"Blueberry"_s);

    click(root());
    QTRY_COMPARE(popup(root())->property("opened").toBool(), true);
    click(root()); // closes it
    QTRY_COMPARE(popup(root())->property("visible").toBool(), false);
    QCOMPARE(activated.count(), 1);
}

void tst_Selection::comboBoxClosesWhenDisabled()
{
    QVERIFY(show("Item { width: 300; height: 200; WComboBox { objectName: 'box'; model: ['One', 'Two'] } }"));
    auto *box = find(u"box"_s);
    QSignalSpy activated(box, SIGNAL(activated(int)));
    QMetaObject::invokeMethod(popup(box), "open"); // by code: without the focus, whose loss closes it
    QTRY_VERIFY(popup(box)->property("opened").toBool());
    root()->setEnabled(false);
    QTRY_VERIFY(!popup(box)->property("visible").toBool());
    root()->setEnabled(true);
    QVERIFY(!popup(box)->property("visible").toBool());
    QCOMPARE(activated.count(), 0);
}

void tst_Selection::comboBoxTexts_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("color");
    QTest::newRow("texts") << QByteArray("model: ['One', 'Two']; currentIndex: 1") << u"Two"_s << u"combobox-text"_s;
    QTest::newRow("objects") << QByteArray("model: [{ n: 'One' }, { n: 'Two' }]; textRole: 'n'; currentIndex: 1")
                             << u"Two"_s << u"combobox-text"_s;
    QTest::newRow("a list model") << QByteArray("textRole: 'n'; currentIndex: 1; model: ListModel { ListElement { n: "
                                                "'One'; v: 1 } ListElement { n: 'Two'; v: 2 } }")
                                  << u"Two"_s << u"combobox-text"_s;
    QTest::newRow("a number of rows") << QByteArray("model: 3; currentIndex: 1") << u"1"_s << u"combobox-text"_s;
    QTest::newRow("markup stays text") << QByteArray("model: ['<b>One</b>', '<b>Two</b>']; currentIndex: 1")
                                       << u"<b>Two</b>"_s << u"combobox-text"_s;
    QTest::newRow("nothing chosen") << QByteArray("model: ['One', 'Two']; currentIndex: -1; placeholderText: 'Choose'")
                                    << u"Choose"_s << u"combobox-placeholder-text"_s;
}

void tst_Selection::comboBoxTexts()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, shown);
    QFETCH(const QString, color);
    QVERIFY(show("WComboBox { " + properties + " }"));
    const auto *text = item(root(), "contentItem");
    QCOMPARE(text->property("text").toString(), shown);
    QCOMPARE(text->property("textFormat").toInt(), int(Qt::PlainText));
    QCOMPARE(text->property("color").value<QColor>(), application()->getColorSet(color).normal);
    root()->setProperty("currentIndex", 1);
    QMetaObject::invokeMethod(popup(root()), "open");
    QTRY_VERIFY(row(1));
    QCOMPARE(row(1)->property("text").toString(), root()->property("displayText").toString());
}

void tst_Selection::comboBoxMarksTheChosenRow()
{
    QVERIFY(show(Fruit + "currentIndex: 1 }"));
    QMetaObject::invokeMethod(popup(root()), "open");
    QTRY_VERIFY(row(2));
    QCOMPARE(itemsWith(row(0), "svgName").size(), 0);
    QCOMPARE(itemsWith(row(1), "svgName").size(), 1);
    QCOMPARE(itemsWith(row(1), "svgName")[0]->property("svgName").toString(), u"check-bold"_s);
    root()->setProperty("currentIndex", 2);
    QCOMPARE(itemsWith(row(1), "svgName").size(), 0);
    QCOMPARE(itemsWith(row(2), "svgName").size(), 1);
    root()->setProperty("textSelectedColorSetName", u"label-success-text"_s);
    QCOMPARE(color(item(row(2), "contentItem"), "color"), application()->getColorSet(u"label-success-text"_s).normal);
    root()->setProperty("tickEnabled", false);
    QCOMPARE(itemsWith(row(2), "svgName").size(), 0);
}

void tst_Selection::comboBoxScrollsALongList()
{
    QVERIFY(show(Fruit + "popupMaxHeight: 100; popupPadding: 4 }"));
    QMetaObject::invokeMethod(popup(root()), "open");
    QTRY_COMPARE(popup(root())->property("opened").toBool(), true);
    QTRY_COMPARE(popup(root())->property("height").toReal(), 100.0);
    auto *list = item(popup(root()), "contentItem");
    QCOMPARE(list->height(), 100.0 - 2 * 4);
    const auto *bar = itemsWith(list->parentItem(), "arrowVisible").constFirst();
    QVERIFY(bar->isVisible());
    QCOMPARE(row(0)->width(), list->width() - bar->width());
    QTest::wheelEvent(window(), list->mapToScene({20, 20}), {0, -120});
    QTRY_COMPARE_GT(list->property("contentY").toReal(), 0.0);
    root()->setProperty("model", QStringList{u"One"_s});
    QTRY_COMPARE_LT(popup(root())->property("height").toReal(), 100.0);
    QVERIFY(!bar->isVisible());
    QTRY_COMPARE(row(0)->width(), list->width());
}

void tst_Selection::comboBoxRowsStandClearOfTheBar_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("mirrored");
    for (const QByteArray type : {"WComboBox", "LKComboBox"}) {
        QTest::newRow(type) << type << false;
        QTest::newRow(type + ", mirrored") << type << true;
    }
}

void tst_Selection::comboBoxRowsStandClearOfTheBar()
{
    QFETCH(const QByteArray, type);
    QFETCH(const bool, mirrored);
    QVERIFY(show(type
                 + " { property bool rtl; LayoutMirroring.enabled: rtl; LayoutMirroring.childrenInherit: true; "
                   "model: 20; popupMaxHeight: 100 }"));
    root()->setProperty("rtl", mirrored);
    QMetaObject::invokeMethod(popup(root()), "open");
    QTRY_VERIFY(row(1));
    auto *list = item(popup(root()), "contentItem");
    const auto *bar = itemsWith(list->parentItem(), "arrowVisible").constFirst();
    const auto rectOf = [list](const QQuickItem *shown) {
        return shown->mapRectToItem(list, QRectF(QPointF(), shown->size()));
    };
    QTRY_COMPARE(rectOf(bar).left(), mirrored ? 0.0 : list->width() - bar->width());
    for (const int index : {0, 1}) {
        QTRY_COMPARE(rectOf(row(index)).left(), mirrored ? bar->width() : 0.0);
        QCOMPARE(row(index)->width(), list->width() - bar->width());
    }
    const auto *tick = itemsWith(row(0), "svgName").constFirst();
    QVERIFY(!rectOf(tick).intersects(rectOf(bar)));
    // What scrolls in stands there too, and everything follows the direction.
    list->setProperty("contentY", 64);
    QTRY_VERIFY(row(4));
    QCOMPARE(rectOf(row(4)).left(), mirrored ? bar->width() : 0.0);
    root()->setProperty("rtl", !mirrored);
    QTRY_COMPARE(rectOf(bar).left(), mirrored ? list->width() - bar->width() : 0.0);
    QTRY_VERIFY(row(4) && rectOf(row(4)).left() == (mirrored ? 0.0 : bar->width()));
    root()->setProperty("model", 1);
    QTRY_VERIFY(row(0) && row(0)->width() == list->width());
    QCOMPARE(rectOf(row(0)).left(), 0.0);
}

void tst_Selection::comboBoxListDoesNotCoverTheBox_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("isBelow");
    QTest::newRow("more room below") << 20 << true;
    QTest::newRow("more room above") << 200 << false;
}

void tst_Selection::comboBoxListDoesNotCoverTheBox()
{
    QFETCH(const int, y);
    QFETCH(const bool, isBelow);
    QVERIFY(show("Item { width: 300; height: 300; WComboBox { objectName: 'box'; model: 20 } }"));
    auto *box = find(u"box"_s);
    box->setY(y);
    QMetaObject::invokeMethod(popup(box), "open");
    QTRY_COMPARE_GT(popup(box)->property("height").toReal(), 96.0);
    const double top = popup(box)->property("y").toReal();
    const double height = popup(box)->property("height").toReal();
    QCOMPARE(top, isBelow ? box->height() + 4 : -height - 4);
    QCOMPARE(height, isBelow ? 300 - y - box->height() - 8 : y - 8.0);
}

void tst_Selection::comboBoxColours()
{
    QVERIFY(show("Item { width: 300; height: 200; WComboBox { objectName: 'box'; x: 20; y: 20; model: ['One'] } }"));
    auto *box = find(u"box"_s);
    const WColorSet background = application()->getColorSet(u"combobox-background"_s);
    moveMouseAway();
    QTRY_COMPARE(color(item(box, "background"), "color"), background.normal);
    moveMouseTo(box);
    QTRY_COMPARE(color(item(box, "background"), "color"), background.hovered);
    box->setEnabled(false);
    QTRY_COMPARE(color(item(box, "background"), "color"), background.disabled);
    QCOMPARE(color(item(box, "indicator"), "svgColor"), application()->getColorSet(u"combobox-icon"_s).disabled);
    QCOMPARE(color(item(popup(box), "background"), "color"),
             application()->getColorSet(u"menulistbackground-primary-background"_s).normal);
    box->setProperty("popupBackgroundColor", QColor(1, 2, 3));
    QCOMPARE(color(item(popup(box), "background"), "color"), QColor(1, 2, 3));
    box->setProperty("backgroundBorderRadius", 7);
    QCOMPARE(item(box, "background")->property("radius").toReal(), 7.0);
}

void tst_Selection::comboBoxCanBeEdited()
{
    QVERIFY(show(Fruit + "editable: true }"));
    QSignalSpy accepted(root(), SIGNAL(accepted()));
    item(root(), "contentItem")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_A, Qt::ControlModifier);
    for (const int key : {Qt::Key_C, Qt::Key_H, Qt::Key_E, Qt::Key_R, Qt::Key_R, Qt::Key_Y})
        press(Qt::Key(key));
    QCOMPARE(root()->property("editText").toString(), u"cherry"_s);
    press(Qt::Key_Return);
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(root()->property("currentIndex").toInt(), 3);
    QCOMPARE(popup(root())->property("visible").toBool(), false);
    press(Qt::Key_F4);
    QTRY_COMPARE(popup(root())->property("opened").toBool(), true);
    press(Qt::Key_Escape);
    root()->setProperty("editable", false);
    QCOMPARE(item(root(), "contentItem")->property("text").toString(), u"Cherry"_s);
}

void tst_Selection::comboBoxMirrors()
{
    QVERIFY(show(Fruit + "property bool rtl; LayoutMirroring.enabled: rtl; LayoutMirroring.childrenInherit: true }"));
    const auto *arrow = item(root(), "indicator");
    const double end = root()->width() - arrow->width() - arrow->x();
    QCOMPARE_GT(arrow->x(), root()->width() / 2);
    QMetaObject::invokeMethod(popup(root()), "open");
    QTRY_VERIFY(row(0));
    QCOMPARE_GT(itemsWith(row(0), "svgName")[0]->mapToItem(row(0), QPointF()).x(), row(0)->width() / 2);
    root()->setProperty("rtl", true);
    QCOMPARE(arrow->x(), end);
    QTRY_COMPARE_LT(itemsWith(row(0), "svgName")[0]->mapToItem(row(0), QPointF()).x(), row(0)->width() / 2);
}

void tst_Selection::comboBoxAccessibility()
{
    QVERIFY(show(Fruit + "Accessible.name: 'Fruit'; currentIndex: 1 }"));
    QAccessible::setActive(true); // makes the controls tell their state
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(root());
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::ComboBox);
    QCOMPARE(interface->text(QAccessible::Name), u"Fruit"_s);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(popup(root())->property("opened").toBool(), true);
    QTRY_VERIFY(row(1));
    QAccessibleInterface *chosen = QAccessible::queryAccessibleInterface(row(1));
    QCOMPARE(chosen->role(), QAccessible::ListItem);
    QCOMPARE(chosen->text(QAccessible::Name), u"Banana"_s);
    QVERIFY(chosen->state().selected);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(popup(root())->property("visible").toBool(), false);
}

LUMAKIT_TEST_MAIN(tst_Selection)
#include "tst_selection.moc"
