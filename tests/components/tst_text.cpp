#include <ComponentTest.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQmlProperty>
#include <QQuickPaintedItem>
#include <QStyleHints>
#include <QToolTip>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

class tst_Text : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }

    void stateColor_data();
    void stateColor();
    void colorsFollowTheTheme();
    void namelessColorSetIsTransparent_data();
    void namelessColorSetIsTransparent();
    void textFollowsItsMouseArea();
    void controlsTargetPicksTheColor_data();
    void controlsTargetPicksTheColor();
    void markupIsShownAsItStands_data();
    void markupIsShownAsItStands();

    void elidedTextHasATooltip();
    void tooltipIsShown_data();
    void tooltipIsShown();
    void accessibleLabelIsReachedByTab();
    void labelIsNamedByItsTooltip();

    void editing_data();
    void editing();
    void readOnlyTextIsCopied_data();
    void readOnlyTextIsCopied();
    void tab_data();
    void tab();
    void disabledTakesNoFocus_data();
    void disabledTakesNoFocus();
    void cursorHasTheTextsColor_data();
    void cursorHasTheTextsColor();
    void focusRingIsForTheKeyboard_data();
    void focusRingIsForTheKeyboard();
    void accessibility_data();
    void accessibility();
    void placeholderIsThereWithoutText_data();
    void placeholderIsThereWithoutText();

    void fieldHidesPassword();
    void fieldShowsError();
    void fieldGrowsForItsPlaceholder();

    void areaGrowsWithItsText();
    void areaWithoutAWidthWraps_data();
    void areaWithoutAWidthWraps();
    void areaScrollsInside();
    void areaMovesByPages();
    void areaScrollsWithItsFlickable();

    void lineEditStaysOneLine();
    void lineEditAccepts_data();
    void lineEditAccepts();
    void longLineShowsItsCursor_data();
    void longLineShowsItsCursor();
    void longLineStaysInItsFrame();
    void flickableTextEditShowsItsCursor();

    void elide_data();
    void elide();
    void elideCopiesTheOriginal_data();
    void elideCopiesTheOriginal();
    void elideMultiline_data();
    void elideMultiline();
    void elideMultilineFollowsItsInput();
    void elideMultilineWithoutAMaximumWidth();
    void elideMultilineCopiesTheOriginal();
    void elideMultilineShowsACaretOnDemand();

    void linkIsClicked();
    void linksByKeyboard();
    void linkMarkupLoadsNothing_data();
    void linkMarkupLoadsNothing();
    void linkFollowsTheTheme();

    void searchIsCleared_data();
    void searchIsCleared();
    void searchKeepsTextOfOthers();
    void searchTab();
    void searchMirrors();

    void namedValue_data();
    void namedValue();
    void namedValueShortensTheValue();

private:
    static QAccessibleInterface *accessible(QQuickItem *item) { return QAccessible::queryAccessibleInterface(item); }
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }
    void type(const char *text) const
    {
        for (; *text; ++text)
            QTest::keyClick(window(), *text);
    }
    QQuickItem *show(const char *component, const char *properties);
};

// The component as "subject", over a button.
QQuickItem *tst_Text::show(const char *component, const char *properties)
{
    ComponentTest::show("Column { padding: 20; spacing: 20; " + QByteArray(component) + " { objectName: 'subject'; "
                        + properties + " } WButton { objectName: 'button'; text: 'Next' } }");
    return find(u"subject"_s);
}

void tst_Text::stateColor_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("state");
    QTest::newRow("text") << "WText"_ba << ""_ba << u"label-primary-text"_s << u"normal"_s;
    QTest::newRow("text, disabled") << "WText"_ba << "enabled: false"_ba << u"label-primary-text"_s << u"disabled"_s;
    QTest::newRow("text, named") << "WText"_ba << "textColorSetName: 'label-error-text'"_ba << u"label-error-text"_s
                                 << u"normal"_s;
    QTest::newRow("label") << "WLabel"_ba << ""_ba << u"label-primary-text"_s << u"normal"_s;
    QTest::newRow("label, disabled") << "WLabel"_ba << "enabled: false"_ba << u"label-primary-text"_s << u"disabled"_s;
    for (const QByteArray component : {"WTextEdit", "WTextField", "WTextArea", "WTextInput", "WLineEdit"}) {
        QTest::newRow(component) << component << ""_ba << u"textinput-text"_s << u"normal"_s;
        QTest::newRow(component + ", disabled")
            << component << "enabled: false"_ba << u"textinput-text"_s << u"disabled"_s;
        // A read-only text looks the same in every state.
        QTest::newRow(component + ", read-only and disabled")
            << component << "enabled: false; readOnly: true"_ba << u"textinput-text"_s << u"normal"_s;
    }
    QTest::newRow("field with an error") << "WTextField"_ba << "showErrorState: true"_ba << u"textinput-error-text"_s
                                         << u"normal"_s;
}

void tst_Text::stateColor()
{
    QFETCH(const QByteArray, component);
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, token);
    QFETCH(const QString, state);
    QQuickItem *text = show(component, "text: 'Text'; " + properties);
    QVERIFY(text);
    QCOMPARE(text->property("color").value<QColor>(), application()->getColorSet(token).getColor(state));
}

void tst_Text::colorsFollowTheTheme()
{
    const QMap<QByteArray, QString> tokens = {{"WText", u"label-primary-text"_s}, {"WLabel", u"label-primary-text"_s},
                                              {"WTextEdit", u"textinput-text"_s}, {"WTextField", u"textinput-text"_s},
                                              {"WTextArea", u"textinput-text"_s}, {"WTextInput", u"textinput-text"_s}};
    QByteArray children;
    for (auto token = tokens.begin(); token != tokens.end(); ++token)
        children += token.key() + " { objectName: '" + token.key() + "'; text: 'Text' }";
    QVERIFY(ComponentTest::show("Column { " + children + " }"));
    for (const char *theme : {"dark", "highcontrast", "default"}) {
        application()->setThemeMode(QString::fromLatin1(theme));
        for (auto token = tokens.begin(); token != tokens.end(); ++token)
            QCOMPARE(find(QString::fromLatin1(token.key()))->property("color").value<QColor>(),
                     application()->getColorSet(*token).normal);
    }
}

void tst_Text::namelessColorSetIsTransparent_data()
{
    QTest::addColumn<QByteArray>("component");
    for (const char *component : {"WText", "WLabel", "WTextEdit", "WTextField", "WTextArea", "WTextInput"})
        QTest::newRow(component) << QByteArray(component);
}

void tst_Text::namelessColorSetIsTransparent()
{
    QFETCH(const QByteArray, component);
    QQuickItem *text = show(component, "text: 'Text'; textColorSetName: ''");
    QVERIFY(text);
    QCOMPARE(text->property("color").value<QColor>(), QColor(Qt::transparent));
}

void tst_Text::textFollowsItsMouseArea()
{
    QVERIFY(show("WText",
                 "text: 'Text'; textColorSetName: 'hyperlink-accent-text'; textMouseArea: area;"
                 "MouseArea { id: area; anchors.fill: parent; hoverEnabled: true }"));
    QQuickItem *text = find(u"subject"_s);
    const WColorSet colors = application()->getColorSet(u"hyperlink-accent-text"_s);
    const auto color = [text] { return text->property("color").value<QColor>(); };
    moveMouseAway();
    QTRY_COMPARE(color(), colors.normal);
    moveMouseTo(text);
    QTRY_COMPARE(color(), colors.hovered);
    const QPoint position = text->mapToScene({5, 5}).toPoint();
    QTest::mousePress(window(), Qt::LeftButton, {}, position);
    QCOMPARE(color(), colors.pressed);
    QTest::mouseRelease(window(), Qt::LeftButton, {}, position);
    QCOMPARE(color(), colors.hovered);
    text->setEnabled(false);
    QCOMPARE(color(), colors.disabled);
}

void tst_Text::controlsTargetPicksTheColor_data()
{
    QTest::addColumn<QByteArray>("component");
    for (const char *component : {"WText", "WLabel", "WTextField"})
        QTest::newRow(component) << QByteArray(component);
}

void tst_Text::controlsTargetPicksTheColor()
{
    QFETCH(const QByteArray, component);
    QQuickItem *text = show(component,
                            "text: 'Text'; textColorSetName: 'textinput-border'; controlsTarget: other;"
                            "Item { id: other; objectName: 'other' }");
    QVERIFY(text);
    const WColorSet colors = application()->getColorSet(u"textinput-border"_s);
    QCOMPARE(text->property("color").value<QColor>(), colors.normal);
    find(u"other"_s)->setEnabled(false);
    QCOMPARE(text->property("color").value<QColor>(), colors.disabled);
}

void tst_Text::markupIsShownAsItStands_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::addColumn<QByteArray>("property");
    for (const char *component :
         {"WText", "WTextElide", "WLabel", "WAccessibleLabel", "WTextEdit", "WTextArea", "WLineEdit", "WTextEditLink"})
        QTest::newRow(component) << QByteArray(component) << "text"_ba;
    QTest::newRow("WTextEditElide") << "WTextEditElide"_ba << "originalText"_ba;
    QTest::newRow("WTextEditElideMultiline") << "WTextEditElideMultiline"_ba << "originalText"_ba;
}

void tst_Text::markupIsShownAsItStands()
{
    QFETCH(const QByteArray, component);
    QFETCH(const QByteArray, property);
    QQuickItem *text = show(component, property + ": '<b>x</b>'");
    QVERIFY(text);
    QCOMPARE(text->property("text").toString(), u"<b>x</b>"_s);
    QCOMPARE(text->property("textFormat").toInt(), int(Qt::PlainText));
    QVERIFY(text->property("contentWidth").toDouble() > 40); // eight characters
}

void tst_Text::elidedTextHasATooltip()
{
    QQuickItem *text = show("WTextElide", "width: 80; text: 'Much longer than its width'");
    QVERIFY(text);
    QCOMPARE(text->property("truncated").toBool(), true);
    QCOMPARE(text->property("toolTipText").toString(), u"Much longer than its width"_s);
    QCOMPARE(accessible(text)->text(QAccessible::Name), u"Much longer than its width"_s);
    text->setWidth(400);
    QTRY_COMPARE(text->property("truncated").toBool(), false);
    QCOMPARE(text->property("toolTipText").toString(), QString());
}

void tst_Text::tooltipIsShown_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::addColumn<QByteArray>("properties");
    QTest::newRow("WText") << QByteArray("WText") << QByteArray("text: 'Camera'; toolTipText: 'What it sees'");
    QTest::newRow("WLabel") << QByteArray("WLabel") << QByteArray("text: 'Camera'; toolTipText: 'What it sees'");
    QTest::newRow("WTextElide") << QByteArray("WTextElide") << QByteArray("width: 60; text: 'What it sees'");
}

void tst_Text::tooltipIsShown()
{
    QFETCH(const QByteArray, component);
    QFETCH(const QByteArray, properties);
    QQuickItem *text = show(component, properties);
    QVERIFY(text);
    moveMouseAway();
    moveMouseTo(text);
    QTRY_VERIFY(QToolTip::isVisible());
    QVERIFY(QToolTip::text().contains(u"What it sees"_s));
}

void tst_Text::accessibleLabelIsReachedByTab()
{
    QQuickItem *label = show("WAccessibleLabel", "text: 'Alone here'");
    QVERIFY(label);
    press(Qt::Key_Tab);
    QTRY_COMPARE(label->hasActiveFocus(), true);
    QAccessibleInterface *interface = accessible(label);
    QCOMPARE(interface->role(), QAccessible::StaticText);
    QCOMPARE(interface->text(QAccessible::Name), u"Alone here"_s);
    QCOMPARE(bool(interface->state().focusable), true);
    QCOMPARE(bool(interface->state().focused), true);
    press(Qt::Key_Tab);
    QCOMPARE(find(u"button"_s)->hasActiveFocus(), true);
}

void tst_Text::labelIsNamedByItsTooltip()
{
    QQuickItem *label = show("WLabel", "toolTipText: 'What the camera sees'");
    QVERIFY(label);
    QCOMPARE(accessible(label)->text(QAccessible::Name), u"What the camera sees"_s);
    label->setProperty("text", u"Camera"_s);
    QCOMPARE(accessible(label)->text(QAccessible::Name), u"Camera"_s);
}

void tst_Text::editing_data()
{
    QTest::addColumn<QByteArray>("component");
    for (const char *component : {"WTextEdit", "WTextField", "WTextArea", "WTextInput", "WLineEdit"})
        QTest::newRow(component) << QByteArray(component);
}

void tst_Text::editing()
{
    QFETCH(const QByteArray, component);
    QQuickItem *edit = show(component, "width: 200");
    QVERIFY(edit);
    const auto text = [edit] { return edit->property("text").toString(); };
    click(edit, QPointF(10, edit->height() / 2));
    QCOMPARE(edit->hasActiveFocus(), true);
    type("abc");
    QCOMPARE(text(), u"abc"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(text(), QString());
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(text(), u"abc"_s);
    press(Qt::Key_Home);
    press(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(edit->property("selectedText").toString(), u"a"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(edit->property("selectedText").toString(), u"abc"_s);
    QCOMPARE(edit->property("selectionColor").value<QColor>(),
             application()->getColorSet(u"button-primary-background"_s).normal);
    QCOMPARE(edit->property("selectedTextColor").value<QColor>(),
             application()->getColorSet(u"button-primary-text"_s).normal);
    press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(text(), QString());
    QCOMPARE(clipboard(), u"abc"_s);
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(text(), u"abcabc"_s);
}

void tst_Text::readOnlyTextIsCopied_data()
{
    editing_data();
}

void tst_Text::readOnlyTextIsCopied()
{
    QFETCH(const QByteArray, component);
    QQuickItem *edit = show(component, "text: 'Number 42'; readOnly: true");
    QVERIFY(edit);
    QGuiApplication::clipboard()->setText(u"before"_s);
    press(Qt::Key_Tab);
    QCOMPARE(edit->hasActiveFocus(), true);
    type("x");
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    QCOMPARE(edit->property("text").toString(), u"Number 42"_s);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), u"Number 42"_s);
}

void tst_Text::tab_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<bool>("leaves");
    for (const char *component : {"WTextField", "WTextInput", "WLineEdit"})
        QTest::newRow(component) << QByteArray(component) << ""_ba << true;
    for (const char *component : {"WTextEdit", "WTextArea"}) {
        QTest::newRow(component) << QByteArray(component) << ""_ba << false;
        QTest::newRow(component + ", read-only"_ba) << QByteArray(component) << "readOnly: true"_ba << true;
    }
    QTest::newRow("WTextArea, Tab goes on") << "WTextArea"_ba << "tabChangesFocus: true"_ba << true;
    QTest::newRow("WTextEditElide") << "WTextEditElide"_ba << ""_ba << true;
    QTest::newRow("WTextEditElideMultiline") << "WTextEditElideMultiline"_ba << ""_ba << true;
    QTest::newRow("WTextEditLink without links") << "WTextEditLink"_ba << ""_ba << true;
}

void tst_Text::tab()
{
    QFETCH(const QByteArray, component);
    QFETCH(const QByteArray, properties);
    QFETCH(const bool, leaves);
    QQuickItem *edit = show(component, properties);
    QVERIFY(edit);
    press(Qt::Key_Tab);
    QCOMPARE(edit->hasActiveFocus(), true);
    press(Qt::Key_Tab);
    QCOMPARE(find(u"button"_s)->hasActiveFocus(), leaves);
    QCOMPARE(edit->property("text").toString(), leaves ? QString() : u"\t"_s);
    edit->forceActiveFocus(Qt::OtherFocusReason);
    press(Qt::Key_Backtab, Qt::ShiftModifier); // always leaves, and comes to the button from the other side
    QCOMPARE(edit->hasActiveFocus(), false);
    QCOMPARE(edit->property("text").toString(), leaves ? QString() : u"\t"_s);
}

void tst_Text::disabledTakesNoFocus_data()
{
    editing_data();
}

void tst_Text::disabledTakesNoFocus()
{
    QFETCH(const QByteArray, component);
    QQuickItem *edit = show(component, "text: 'Text'; enabled: false");
    QVERIFY(edit);
    click(edit);
    QCOMPARE(edit->hasActiveFocus(), false);
    press(Qt::Key_Tab);
    QCOMPARE(find(u"button"_s)->hasActiveFocus(), true);
    type("x");
    QCOMPARE(edit->property("text").toString(), u"Text"_s);
    QCOMPARE(bool(accessible(edit)->state().disabled), true);
}

void tst_Text::cursorHasTheTextsColor_data()
{
    editing_data();
}

void tst_Text::cursorHasTheTextsColor()
{
    QFETCH(const QByteArray, component);
    QQuickItem *edit = show(component, "width: 200; text: ''");
    QVERIFY(edit);
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    const auto restore = qScopeGuard([] { QGuiApplication::styleHints()->setCursorFlashTime(1000); });
    edit->forceActiveFocus();
    moveMouseAway();
    QCOMPARE(edit->property("cursorVisible").toBool(), true);
    const QRectF cursor = edit->property("cursorRectangle").toRectF();
    QCOMPARE(cursor.width(), 1.0);
    const QPoint middle = edit->mapToScene(QPointF(cursor.x() + 0.5, cursor.center().y())).toPoint();
    // not the centre of a pixel: it may be that on either side
    const auto painted = [&](int dx) { return window()->grabWindow().pixelColor(middle + QPoint(dx, 0)); };
    const QColor color = edit->property("color").value<QColor>();
    QTRY_VERIFY(painted(0) == color || painted(-1) == color);
}

void tst_Text::focusRingIsForTheKeyboard_data()
{
    editing_data();
}

void tst_Text::focusRingIsForTheKeyboard()
{
    QFETCH(const QByteArray, component);
    QQuickItem *edit = show(component, "width: 200");
    QVERIFY(edit);
    click(edit);
    QCOMPARE(edit->hasActiveFocus(), true);
    const auto ring = [edit] {
        const QList<QQuickItem *> children = edit->childItems();
        return std::ranges::any_of(children, [](QQuickItem *item) { return qobject_cast<QQuickPaintedItem *>(item); });
    };
    QCOMPARE(ring(), false);
    find(u"button"_s)->forceActiveFocus(Qt::MouseFocusReason);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(edit->hasActiveFocus(), true);
    QCOMPARE(ring(), true);
}

void tst_Text::accessibility_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("readOnly");
    const auto row = [](const char *component, const char *properties, QAccessible::Role role, const QString &name,
                        bool readOnly) {
        QTest::addRow("%s { %s }", component, properties)
            << QByteArray(component) << QByteArray(properties) << int(role) << name << readOnly;
    };
    row("WText", "text: 'Camera'", QAccessible::StaticText, u"Camera"_s, true);
    row("WLabel", "text: 'Camera'", QAccessible::StaticText, u"Camera"_s, true);
    row("WTextEdit", "text: 'Camera'", QAccessible::EditableText, {}, false);
    row("WTextEdit", "text: 'Camera'; readOnly: true", QAccessible::StaticText, u"Camera"_s, true);
    row("WTextField", "placeholderText: 'Name'", QAccessible::EditableText, u"Name"_s, false);
    row("WTextField", "placeholderText: 'Name'; readOnly: true", QAccessible::EditableText, u"Name"_s, true);
    row("WTextArea", "placeholderText: 'Name'", QAccessible::EditableText, u"Name"_s, false);
    row("WLineEdit", "placeholderText: 'Name'", QAccessible::EditableText, u"Name"_s, false);
    row("WTextInput", "placeholderText: 'Name'; readOnly: true", QAccessible::EditableText, u"Name"_s, true);
    row("WTextEditElide", "originalText: 'Much too long'; maximumWidth: 40", QAccessible::StaticText,
        u"Much too long"_s, true);
    row("WTextEditElideMultiline", "originalText: 'Much too long'; maximumWidth: 40; maximumLineCount: 1",
        QAccessible::StaticText, u"Much too long"_s, true);
    row("WTextEditLink", "markup: 'The <a href=\"x\">terms</a>'", QAccessible::Link, u"The terms"_s, true);
    row("WNamedValue", "name: 'Codec'; value: 'H.264'", QAccessible::StaticText, u"Codec: H.264"_s, true);
}

void tst_Text::accessibility()
{
    QFETCH(const QByteArray, component);
    QFETCH(const QByteArray, properties);
    QFETCH(const int, role);
    QFETCH(const QString, name);
    QFETCH(const bool, readOnly);
    QQuickItem *text = show(component, properties);
    QVERIFY(text);
    QAccessibleInterface *interface = accessible(text);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Role(role));
    QCOMPARE(interface->text(QAccessible::Name), name);
    QCOMPARE(bool(interface->state().readOnly), readOnly);
}

void tst_Text::placeholderIsThereWithoutText_data()
{
    QTest::addColumn<QByteArray>("component");
    for (const char *component : {"WTextField", "WTextArea", "WTextInput", "WLineEdit"})
        QTest::newRow(component) << QByteArray(component);
}

void tst_Text::placeholderIsThereWithoutText()
{
    QFETCH(const QByteArray, component);
    QQuickItem *edit = show(component, "width: 200; placeholderText: '<b>Name</b>'");
    QVERIFY(edit);
    const auto placeholder = [edit]() -> QQuickItem * {
        QList<QQuickItem *> items = edit->childItems();
        for (qsizetype i = 0; i < items.size(); ++i) {
            if (items[i]->isVisible() && items[i]->property("text").toString() == "<b>Name</b>"_L1)
                return items[i];
            items += items[i]->childItems();
        }
        return nullptr;
    };
    QVERIFY(placeholder());
    QCOMPARE(placeholder()->property("textFormat").toInt(), int(Qt::PlainText));
    QCOMPARE(placeholder()->property("color").value<QColor>(),
             application()->getColorSet(u"textinput-placeholder-text"_s).normal);
    edit->forceActiveFocus();
    QVERIFY(placeholder());
    type("x");
    QVERIFY(!placeholder());
    press(Qt::Key_Backspace);
    QVERIFY(placeholder());
}

void tst_Text::fieldHidesPassword()
{
    QQuickItem *field = show("WTextField", "echoMode: TextInput.Password");
    QVERIFY(field);
    QGuiApplication::clipboard()->setText(u"before"_s);
    field->forceActiveFocus();
    type("secret");
    QCOMPARE(field->property("text").toString(), u"secret"_s);
    QCOMPARE(field->property("displayText").toString().contains(u's'), false);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), u"before"_s);
    QCOMPARE(bool(accessible(field)->state().passwordEdit), true);
}

void tst_Text::fieldShowsError()
{
    QQuickItem *field = show("WTextField", "text: 'Wrong'");
    QVERIFY(field);
    moveMouseAway();
    auto *frame = field->property("background").value<QQuickItem *>();
    const auto compare = [&](const QString &family) {
        QCOMPARE(frame->property("color").value<QColor>(),
                 application()->getColorSet(family + "-background"_L1).normal);
        QCOMPARE(frame->property("border").value<QObject *>()->property("color").value<QColor>(),
                 application()->getColorSet(family + "-border"_L1).normal);
    };
    compare(u"textinput"_s);
    field->setProperty("showErrorState", true);
    compare(u"textinput-error"_s);
    field->setProperty("showErrorState", false);
    compare(u"textinput"_s);
}

void tst_Text::fieldGrowsForItsPlaceholder()
{
    QQuickItem *field = show("WTextField", "");
    QVERIFY(field);
    QCOMPARE(field->size(), QSizeF(200, 32));
    field->setProperty("placeholderText", QString(60, u'm'));
    QVERIFY(field->width() > 400);
    application()->setFontScaleFactor(1.5);
    QVERIFY(field->height() > 32);
}

void tst_Text::areaGrowsWithItsText()
{
    QQuickItem *area = show("WTextArea", "");
    QVERIFY(area);
    QCOMPARE(area->size(), QSizeF(200, 64));
    area->setProperty("text", u"1\n2\n3\n4\n5\n6"_s);
    QVERIFY(area->height() > 120);
    QCOMPARE(area->property("scrollY").toDouble(), 0.0);
}

void tst_Text::areaWithoutAWidthWraps_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("as it is") << false;
    QTest::newRow("mirrored") << true;
}

void tst_Text::areaWithoutAWidthWraps()
{
    QFETCH(const bool, mirrored);
    QQuickItem *area = show("WTextArea", mirrored ? "LayoutMirroring.enabled: true" : "");
    QVERIFY(area);
    const auto startOf = [area](int position) {
        QRectF place;
        QMetaObject::invokeMethod(area, "positionToRectangle", Q_RETURN_ARG(QRectF, place), Q_ARG(int, position));
        return place.topLeft();
    };
    area->setProperty("text", u"Short"_s);
    QCOMPARE(area->width(), 200.0);
    const double shortStart = startOf(0).x();
    if (mirrored)
        QCOMPARE_GT(shortStart, 100.0);
    else
        QCOMPARE(shortStart, 8.0);
    area->setProperty("text", u"A longer line\nB"_s);
    if (mirrored)
        QCOMPARE(startOf(15).x(), 192.0); // each line ends at the edge
    else
        QCOMPARE(startOf(14).x(), 8.0);
    area->setProperty("text", u"A text that is longer than the area is wide, so that it wraps. "_s.repeated(3));
    QCOMPARE(area->width(), 200.0);
    QCOMPARE_GT(area->property("lineCount").toInt(), 3);
    QCOMPARE_LE(area->property("contentWidth").toDouble(), 184.0);
    area->setProperty("text", u"Short"_s);
    QCOMPARE(startOf(0).x(), shortStart);
    area->setProperty("placeholderText", u"A placeholder that is wider than the area is otherwise"_s);
    QCOMPARE_GT(area->width(), 300.0);
    area->setWidth(120);
    QCOMPARE(area->width(), 120.0);
    if (mirrored)
        QCOMPARE(startOf(5).x(), 112.0);
}

void tst_Text::areaScrollsInside()
{
    QQuickItem *area = show("WTextArea", "width: 200; height: 64; text: '1\\n2\\n3\\n4\\n5\\n6\\n7\\n8'");
    QVERIFY(area);
    const auto scrolled = [area] { return area->property("scrollY").toDouble(); };
    const auto cursor = [area] { return area->property("cursorRectangle").toRectF(); };
    const double range = area->property("contentHeight").toDouble() + 2 * 8 - 64;
    QCOMPARE(scrolled(), 0.0);

    area->forceActiveFocus();
    press(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(scrolled(), range);
    QCOMPARE(cursor().bottom(), 64.0 - 8);
    press(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(scrolled(), 0.0);
    QCOMPARE(cursor().top(), 8.0);

    const QPointF middle = area->mapToScene({100, 32});
    QTest::wheelEvent(window(), middle, {0, -120});
    QTRY_COMPARE(scrolled(), 3 * cursor().height());
    QTest::wheelEvent(window(), middle, {0, -1200});
    QTRY_COMPARE(scrolled(), range);
    QTest::wheelEvent(window(), middle, {0, 1200});
    QTRY_COMPARE(scrolled(), 0.0);

    // Less text, or more room: nothing is scrolled beyond the end.
    press(Qt::Key_End, Qt::ControlModifier);
    area->setHeight(400);
    QCOMPARE(scrolled(), 0.0);
    area->setHeight(64);
    QCOMPARE(scrolled(), range);
    area->setProperty("text", u"1"_s);
    QCOMPARE(scrolled(), 0.0);
}

void tst_Text::areaMovesByPages()
{
    QQuickItem *area = show("WTextArea", "width: 200; height: 64; text: '1\\n2\\n3\\n4\\n5\\n6\\n7\\n8'");
    QVERIFY(area);
    const auto position = [area] { return area->property("cursorPosition").toInt(); };
    area->forceActiveFocus();
    press(Qt::Key_PageDown);
    const int page = position();
    QVERIFY(page >= 2 && page <= 6); // one to three lines
    press(Qt::Key_PageUp);
    QCOMPARE(position(), 0);
    press(Qt::Key_PageDown, Qt::ShiftModifier);
    QCOMPARE(position(), page);
    QCOMPARE(area->property("selectedText").toString().size(), page);
    for (int i = 0; i < 8; ++i)
        press(Qt::Key_PageDown);
    QVERIFY(position() >= 14);
}

// The flickable scrolls then, and the area is as high as its text.
void tst_Text::areaScrollsWithItsFlickable()
{
    QVERIFY(show("ScrollView", "width: 200; height: 100; WTextArea { objectName: 'area' }"));
    QQuickItem *area = find(u"area"_s);
    auto *flickable = find(u"subject"_s)->property("contentItem").value<QQuickItem *>();
    const auto cursor = [&] { return flickable->mapRectFromItem(area, area->property("cursorRectangle").toRectF()); };
    area->forceActiveFocus();
    for (int i = 0; i < 12; ++i)
        press(Qt::Key_Return);
    QCOMPARE(area->property("scrollY").toDouble(), 0.0);
    QCOMPARE(area->height(), area->property("contentHeight").toDouble() + 2 * 8);
    QTRY_VERIFY(cursor().bottom() <= 100);
    application()->setFontScaleFactor(1.5);
    area->setProperty("text", QString(20, u'\n'));
    QCOMPARE(area->property("scrollY").toDouble(), 0.0);
    press(Qt::Key_Home, Qt::ControlModifier);
    QTRY_VERIFY(cursor().top() >= 0);
}

void tst_Text::lineEditStaysOneLine()
{
    QQuickItem *edit = show("WLineEdit", "");
    QVERIFY(edit);
    QCOMPARE(edit->height(), 32.0);
    edit->forceActiveFocus();
    type("x");
    QGuiApplication::clipboard()->setText(u"yz"_s);
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(edit->property("text").toString(), u"xyz"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit->property("text").toString(), u"x"_s);
    QGuiApplication::clipboard()->setText(u"one\ntwo\r\nthree <b>"_s);
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(edit->property("text").toString(), u"xone two three <b>"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    QMetaObject::invokeMethod(edit, "paste");
    QCOMPARE(edit->property("text").toString(), u"one two three <b>"_s);
    QCOMPARE(edit->height(), 32.0);
    edit->setProperty("text", u"from\noutside"_s);
    QCOMPARE(edit->property("text").toString(), u"from outside"_s);
}

void tst_Text::lineEditAccepts_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

void tst_Text::lineEditAccepts()
{
    QFETCH(const int, key);
    QQuickItem *edit = show("WLineEdit", "text: 'Title'");
    QVERIFY(edit);
    QSignalSpy accepted(edit, SIGNAL(accepted()));
    edit->forceActiveFocus();
    press(Qt::Key(key));
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(edit->property("text").toString(), u"Title"_s);
}

void tst_Text::longLineShowsItsCursor_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("line edit") << "WLineEdit"_ba << false;
    QTest::newRow("line edit, mirrored") << "WLineEdit"_ba << true;
    QTest::newRow("flickable line edit") << "WFlickableLineEdit"_ba << false;
    QTest::newRow("flickable line edit, mirrored") << "WFlickableLineEdit"_ba << true;
}

void tst_Text::longLineShowsItsCursor()
{
    QFETCH(const QByteArray, component);
    QFETCH(const bool, mirrored);
    QQuickItem *frame = show(component,
                             "width: 120; LayoutMirroring.enabled: " + QByteArray(mirrored ? "true" : "false")
                                 + "; LayoutMirroring.childrenInherit: true");
    QVERIFY(frame);
    auto *flicked = frame->property("lineEdit").value<QQuickItem *>();
    QQuickItem *edit = flicked ? flicked : frame;
    const auto cursor = [&] { return frame->mapRectFromItem(edit, edit->property("cursorRectangle").toRectF()); };
    edit->forceActiveFocus();
    type("a line that is longer than its field");
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End}) {
        press(key);
        QVERIFY2(cursor().left() >= 0, qPrintable(QString::number(cursor().left())));
        QVERIFY2(cursor().right() <= 120, qPrintable(QString::number(cursor().right())));
    }
    QVERIFY(edit->property("contentWidth").toDouble() > 120);
}

void tst_Text::longLineStaysInItsFrame()
{
    QQuickItem *flickable = show("WFlickableLineEdit", "width: 100; lineEdit.text: 'MMMMMMMMMMMMMMMMMMMMMMMMMMMM'");
    QVERIFY(flickable);
    QTRY_COMPARE_GT(flickable->property("contentWidth").toDouble(), 200.0);
    const QColor border = application()->getColorSet(u"textinput-border"_s).normal;
    const QImage image = window()->grabWindow();
    const QPoint topRight = flickable->mapToScene({99, 0}).toPoint();
    for (int y = 8; y < flickable->height() - 8; ++y)
        QCOMPARE(image.pixelColor(topRight + QPoint(0, y)), border);
}

void tst_Text::flickableTextEditShowsItsCursor()
{
    QQuickItem *flickable = show("WFlickableTextEdit", "width: 160; height: 60; accessibleText: 'Notes'");
    QVERIFY(flickable);
    auto *edit = flickable->property("textEdit").value<QQuickItem *>();
    const auto contentY = [&] { return flickable->property("contentY").toDouble(); };
    const auto cursor = [&] { return flickable->mapRectFromItem(edit, edit->property("cursorRectangle").toRectF()); };
    QCOMPARE(accessible(edit)->text(QAccessible::Name), u"Notes"_s);

    click(flickable, QPointF(80, 50)); // below the text
    QCOMPARE(edit->hasActiveFocus(), true);
    for (int i = 0; i < 8; ++i)
        press(Qt::Key_Return);
    QVERIFY(contentY() > 60);
    QVERIFY(cursor().bottom() <= 60);
    press(Qt::Key_PageUp);
    QVERIFY(edit->property("cursorPosition").toInt() < 8);
    press(Qt::Key_Home, Qt::ControlModifier);
    QVERIFY(cursor().top() >= 0);
    QCOMPARE(contentY(), 0.0); // with the room above the text
    press(Qt::Key_PageDown, Qt::ShiftModifier);
    QVERIFY(!edit->property("selectedText").toString().isEmpty());

    auto *area = flickable->property("mouseArea").value<QQuickItem *>();
    QSignalSpy clicked(area, SIGNAL(clicked(QQuickMouseEvent *)));
    click(flickable, Qt::RightButton);
    QCOMPARE(clicked.count(), 1);
    click(flickable, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
}

void tst_Text::elide_data()
{
    QTest::addColumn<QString>("original");
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("maximumWidth");
    QTest::addColumn<QString>("pattern");
    const QString address = u"planning-room-on-the-third-floor@example"_s;
    QTest::newRow("at the end") << address << int(Qt::ElideRight) << 120.0 << u"^planning.*…$"_s;
    QTest::newRow("in the middle") << address << int(Qt::ElideMiddle) << 120.0 << u"^plan.*….*example$"_s;
    QTest::newRow("at the start") << address << int(Qt::ElideLeft) << 120.0 << u"^….*example$"_s;
    QTest::newRow("never") << address << int(Qt::ElideNone) << 120.0 << u"^%1$"_s.arg(address);
    QTest::newRow("wide enough") << address << int(Qt::ElideRight) << 1000.0 << u"^%1$"_s.arg(address);
    QTest::newRow("no limit") << address << int(Qt::ElideRight) << -1.0 << u"^%1$"_s.arg(address);
    QTest::newRow("one line") << u"one\ntwo"_s << int(Qt::ElideRight) << -1.0 << u"^one two$"_s;
    QTest::newRow("empty") << QString() << int(Qt::ElideRight) << 120.0 << u"^$"_s;
}

void tst_Text::elide()
{
    QFETCH(const QString, original);
    QFETCH(const int, mode);
    QFETCH(const double, maximumWidth);
    QFETCH(const QString, pattern);
    QQuickItem *edit = show("WTextEditElide", "");
    QVERIFY(edit);
    edit->setProperty("maximumWidth", maximumWidth);
    edit->setProperty("elideMode", mode);
    edit->setProperty("originalText", original);
    const QString text = edit->property("text").toString();
    QVERIFY2(QRegularExpression(pattern).match(text).hasMatch(), qPrintable(text));
    const bool elided = text.contains(u'…');
    QCOMPARE(edit->property("elided").toBool(), elided);
    if (elided)
        QVERIFY(edit->property("contentWidth").toDouble() <= maximumWidth + 1);
    QCOMPARE(edit->property("lineCount").toInt(), 1);
}

void tst_Text::elideCopiesTheOriginal_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("fromStart");
    QTest::addColumn<int>("fromEnd");
    QTest::addColumn<QString>("copied");
    const QString original = u"a\nplanning-room-on-the-third-floor@example"_s;
    for (const auto &[name, mode] :
         {std::pair{"right", Qt::ElideRight}, {"middle", Qt::ElideMiddle}, {"left", Qt::ElideLeft}})
        QTest::addRow("%s, all", name) << int(mode) << 0 << 0 << original;
    // Counted in characters that are left out of the selection at either end.
    QTest::newRow("right, up to the ellipsis") << int(Qt::ElideRight) << 2 << 1 << QString();
    QTest::newRow("right, with the ellipsis") << int(Qt::ElideRight) << 2 << 0 << original.mid(2);
    QTest::newRow("middle, around the ellipsis") << int(Qt::ElideMiddle) << 3 << 4 << original.mid(3).chopped(4);
    QTest::newRow("left, after the ellipsis") << int(Qt::ElideLeft) << 1 << 0 << QString();
}

void tst_Text::elideCopiesTheOriginal()
{
    QFETCH(const int, mode);
    QFETCH(const int, fromStart);
    QFETCH(const int, fromEnd);
    QFETCH(QString, copied);
    QQuickItem *edit =
        show("WTextEditElide", "maximumWidth: 120; originalText: 'a\\nplanning-room-on-the-third-floor@example'");
    QVERIFY(edit);
    edit->setProperty("elideMode", mode);
    const QString shown = edit->property("text").toString();
    QVERIFY(shown.contains(u'…'));
    const int end = int(shown.size()) - fromEnd;
    if (copied.isNull()) // what is shown there
        copied = shown.mid(fromStart, end - fromStart);
    edit->forceActiveFocus();
    QMetaObject::invokeMethod(edit, "select", fromStart, end);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), copied);
    QGuiApplication::clipboard()->clear();
    QMetaObject::invokeMethod(edit, "copy");
    QCOMPARE(clipboard(), copied);
    press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(edit->property("selectedText").toString(), shown);
}

void tst_Text::elideMultiline_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("elided");
    QTest::newRow("two lines") << "maximumLineCount: 2"_ba << 2 << true;
    QTest::newRow("one line") << "maximumLineCount: 1"_ba << 1 << true;
    QTest::newRow("no lines count as one") << "maximumLineCount: 0"_ba << 1 << true;
    QTest::newRow("fixed height for three lines") << "fixedHeight: 70"_ba << 3 << true;
    QTest::newRow("fixed height for less than a line") << "fixedHeight: 4"_ba << 1 << true;
    QTest::newRow("the smaller of both") << "fixedHeight: 70; maximumLineCount: 2"_ba << 2 << true;
    QTest::newRow("lines enough") << "maximumLineCount: 100"_ba << -1 << false;
    QTest::newRow("no eliding") << "maximumLineCount: 2; elideMode: Text.ElideNone"_ba << -1 << false;
}

void tst_Text::elideMultiline()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const int, lines);
    QFETCH(const bool, elided);
    const QString original = u"These are many words of a text that needs more than a handful of short lines."_s;
    QQuickItem *edit = show("WTextEditElideMultiline",
                            "maximumWidth: 160; originalText: '" + original.toLatin1() + "'; " + properties);
    QVERIFY(edit);
    const QString text = edit->property("text").toString();
    const int wrapped = edit->property("wrappedLines").toInt();
    QVERIFY(wrapped > 3);
    QCOMPARE(edit->property("lineCount").toInt(), lines < 0 ? wrapped : lines);
    QCOMPARE(edit->property("elided").toBool(), elided);
    if (!elided) {
        QCOMPARE(text, original);
    } else {
        QCOMPARE(text.back(), u'…');
        QVERIFY(original.startsWith(text.chopped(1)));
        QCOMPARE(original[text.size() - 1], u' '); // after a word
    }
    const double fixedHeight = edit->property("fixedHeight").toDouble();
    QCOMPARE(edit->property("preferredHeight").toDouble(),
             fixedHeight > 0 ? fixedHeight : std::ceil(edit->property("contentHeight").toDouble()));
    QVERIFY(edit->width() <= 160);
}

void tst_Text::elideMultilineFollowsItsInput()
{
    QQuickItem *edit = show("WTextEditElideMultiline", "maximumWidth: 100; maximumLineCount: 2");
    QVERIFY(edit);
    const auto text = [edit] { return edit->property("text").toString(); };
    QCOMPARE(text(), QString());
    edit->setProperty("originalText", u"One word after another until it is too long"_s);
    const QString narrow = text();
    QCOMPARE(narrow.back(), u'…');
    edit->setProperty("maximumWidth", 160);
    QVERIFY(text().size() > narrow.size());
    application()->setFontScaleFactor(1.5);
    edit->setProperty("maximumWidth", 100);
    QVERIFY(text().size() < narrow.size());
    application()->setFontScaleFactor(1);
    QCOMPARE(text(), narrow);
    edit->setProperty("originalText", u"Einhundertachtundvierzigtausendfünfhundertsiebenundsechzig"_s); // one word
    QCOMPARE(edit->property("lineCount").toInt(), 2);
    QCOMPARE(text().back(), u'…');
    QVERIFY(text().size() > 10);
    edit->setProperty("originalText", u"Short"_s);
    QCOMPARE(text(), u"Short"_s);
    QCOMPARE(edit->property("wrappedLines").toInt(), 1);
}

// As wide as its text, it follows the text without a loop.
void tst_Text::elideMultilineWithoutAMaximumWidth()
{
    QQuickItem *edit = show("WTextEditElideMultiline", "maximumLineCount: 1");
    QVERIFY(edit);
    edit->setProperty("originalText", u"First line\nsecond line"_s);
    QCOMPARE(edit->property("wrappedLines").toInt(), 2);
    QVERIFY(edit->property("elided").toBool());
    const double narrow = edit->width();
    edit->setProperty("originalText", u"A first line that is much longer\nsecond line"_s);
    QVERIFY(edit->width() > narrow);
    application()->setFontScaleFactor(1.5);
    QVERIFY(edit->property("elided").toBool());
    edit->setProperty("maximumWidth", 120);
    application()->setFontScaleFactor(1);
    QVERIFY(edit->width() <= 120);
    edit->setProperty("maximumWidth", -1);
    edit->setProperty("originalText", u"One line"_s);
    QCOMPARE(edit->property("text").toString(), u"One line"_s);
}

void tst_Text::elideMultilineCopiesTheOriginal()
{
    QQuickItem *edit = show("WTextEditElideMultiline",
                            "maximumWidth: 100; maximumLineCount: 2;"
                            "originalText: 'One word after another\\nuntil it is too long'");
    QVERIFY(edit);
    edit->forceActiveFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), u"One word after another\nuntil it is too long"_s);
    QMetaObject::invokeMethod(edit, "select", 4, 8);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), u"word"_s);
}

void tst_Text::elideMultilineShowsACaretOnDemand()
{
    QQuickItem *edit = show("WTextEditElideMultiline", "originalText: 'Text'");
    QVERIFY(edit);
    edit->forceActiveFocus();
    QCOMPARE(edit->property("cursorVisible").toBool(), false);
    edit->setProperty("showCaretOnActiveFocus", true);
    QCOMPARE(edit->property("cursorVisible").toBool(), true);
    find(u"button"_s)->forceActiveFocus();
    QCOMPARE(edit->property("cursorVisible").toBool(), false);
}

void tst_Text::linkIsClicked()
{
    QQuickItem *edit = show("WTextEditLink", "markup: '<a href=\"terms\">terms</a> and nothing else'");
    QVERIFY(edit);
    QSignalSpy activated(edit, SIGNAL(linkActivated(QString)));
    auto *area = edit->property("mouseArea").value<QQuickItem *>();
    moveMouseTo(edit);
    QTRY_COMPARE(area->cursor().shape(), Qt::IBeamCursor);
    click(edit, QPointF(edit->width() - 20, 10));
    QCOMPARE(activated.count(), 0);
    QTest::mouseMove(window(), edit->mapToScene({10, 10}).toPoint());
    QTRY_COMPARE(area->cursor().shape(), Qt::PointingHandCursor);
    click(edit, QPointF(10, 10));
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.first().first().toString(), u"terms"_s);
    edit->setEnabled(false);
    click(edit, QPointF(10, 10));
    QCOMPARE(activated.count(), 1);
}

void tst_Text::linksByKeyboard()
{
    QQuickItem *edit = show("WTextEditLink",
                            "width: 120; markup: 'The <a href=\"1\">first and</a><a href=\"2\">second</a>"
                            " and <a href=\"3\">third</a>'");
    QVERIFY(edit);
    QSignalSpy activated(edit, SIGNAL(linkActivated(QString)));
    const auto link = [edit] { return edit->property("currentLink").toString(); };
    const auto selected = [edit] { return edit->property("selectedText").toString(); };
    press(Qt::Key_Tab);
    QCOMPARE(edit->hasActiveFocus(), true);
    QCOMPARE(link(), u"1"_s);
    QCOMPARE(selected(), u"first and"_s);
    press(Qt::Key_Return);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) { // a held key does not follow the link again
        QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(window(), &repeated);
    }
    press(Qt::Key_Tab);
    QCOMPARE(link(), u"2"_s);
    QCOMPARE(selected(), u"second"_s);
    press(Qt::Key_Enter);
    press(Qt::Key_Tab);
    QCOMPARE(link(), u"3"_s);
    press(Qt::Key_Space);
    press(Qt::Key_Tab, Qt::NoModifier);
    QCOMPARE(find(u"button"_s)->hasActiveFocus(), true);
    QCOMPARE(link(), QString());
    QStringList links;
    for (const QVariantList &arguments : std::as_const(activated))
        links += arguments.first().toString();
    QCOMPARE(links, QStringList({u"1"_s, u"2"_s, u"3"_s}));

    // A screen reader's press is one on the first link.
    auto *actions = accessible(edit)->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(activated.count(), 4);
    QCOMPARE(activated.last().first().toString(), u"1"_s);
}

void tst_Text::linkMarkupLoadsNothing_data()
{
    QTest::addColumn<QString>("markup");
    QTest::addColumn<QString>("text");
    QTest::newRow("image") << u"a<img src=\"file:///none.png\">b"_s << u"ab"_s;
    QTest::newRow("image without an end") << u"ab<img src=\"file:///none.png\""_s << u"ab"_s;
    QTest::newRow("image inside a tag") << u"a<b <img src='file:///none.png'>b"_s << u"ab"_s;
    QTest::newRow("image inside an address") << u"<a href='\"><img src=x>'>b</a>"_s << u"'>b"_s;
    QTest::newRow("style") << u"<p style=\"background-image:url(file:///none.png)\">ab</p>"_s << u"ab"_s;
    QTest::newRow("style sheet") << u"<link rel=stylesheet href=file:///none.css>ab"_s << u"ab"_s;
    QTest::newRow("body") << u"<body background=\"file:///none.png\">ab</body>"_s << u"ab"_s;
    QTest::newRow("emphasis stays") << u"<B>a</B><em class=x>b</em>"_s << u"ab"_s;
    QTest::newRow("entities stay") << u"a &lt; b"_s << u"a < b"_s;
    QTest::newRow("comparison") << u"a < b"_s << u"a "_s; // what begins like a tag is one
}

void tst_Text::linkMarkupLoadsNothing()
{
    QFETCH(const QString, markup);
    QFETCH(const QString, text);
    QQuickItem *edit = show("WTextEditLink", "");
    QVERIFY(edit);
    edit->setProperty("markup", markup);
    QString shown;
    QMetaObject::invokeMethod(edit, "getText", qReturnArg(shown), 0, edit->property("length").toInt());
    QCOMPARE(shown.trimmed(), text.trimmed());
    const QString html = edit->property("text").toString();
    for (const char *word : {"none.png", "none.css", "<img"})
        QVERIFY2(!html.contains(QLatin1StringView(word)), qPrintable(html));
}

void tst_Text::linkFollowsTheTheme()
{
    QQuickItem *edit = show("WTextEditLink", "markup: '<a href=\"x\">x</a>'");
    QVERIFY(edit);
    for (const char *theme : {"dark", "highcontrast", "default"}) {
        application()->setThemeMode(QString::fromLatin1(theme));
        const QColor color = application()->getColorSet(u"hyperlink-accent-text"_s).normal;
        QVERIFY(edit->property("text").toString().contains(color.name()));
    }
}

void tst_Text::searchIsCleared_data()
{
    QTest::addColumn<QByteArray>("how");
    for (const char *how : {"mouse", "escape", "escape on the button", "space on the button", "screen reader"})
        QTest::newRow(how) << QByteArray(how);
}

void tst_Text::searchIsCleared()
{
    QFETCH(const QByteArray, how);
    QQuickItem *search = show("WSearchField",
                              "serachFieldPlaceHolderText: 'Search people';"
                              "property int changes: 0; onSearchTextChanged: ++changes");
    QVERIFY(search);
    auto *field = search->property("textField").value<QQuickItem *>();
    const auto button = [search] { return search->property("cancelButton").value<QQuickItem *>(); };
    QCOMPARE(field->property("placeholderText").toString(), u"Search people"_s);
    QCOMPARE(accessible(field)->text(QAccessible::Name), u"Search people"_s);
    QCOMPARE(bool(accessible(field)->state().searchEdit), true);
    QVERIFY(!button());

    QSignalSpy cleared(search, SIGNAL(cleared()));
    QSignalSpy accepted(search, SIGNAL(accepted()));
    search->forceActiveFocus();
    QCOMPARE(field->hasActiveFocus(), true);
    type("Ada");
    QCOMPARE(search->property("searchText").toString(), u"Ada"_s);
    QCOMPARE(search->property("changes").toInt(), 3);
    press(Qt::Key_Return);
    QCOMPARE(accepted.count(), 1);
    QVERIFY(button());
    QCOMPARE(accessible(button())->role(), QAccessible::Button);
    QVERIFY(!accessible(button())->text(QAccessible::Name).isEmpty());

    if (how == "mouse")
        click(button());
    else if (how == "escape")
        press(Qt::Key_Escape);
    else if (how == "screen reader")
        accessible(button())->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    else {
        press(Qt::Key_Tab);
        QCOMPARE(button()->hasActiveFocus(), true);
        press(how.startsWith("escape") ? Qt::Key_Escape : Qt::Key_Space);
    }
    QCOMPARE(search->property("searchText").toString(), QString());
    QCOMPARE(cleared.count(), 1);
    QVERIFY(!button());
    QCOMPARE(field->hasActiveFocus(), true);

    // With nothing to clear Escape is for others.
    press(Qt::Key_Escape);
    QCOMPARE(cleared.count(), 1);
}

void tst_Text::searchKeepsTextOfOthers()
{
    QQuickItem *search = show("WSearchField", "searchText: 'Ada'; enabled: false");
    QVERIFY(search);
    click(search->property("cancelButton").value<QQuickItem *>());
    QCOMPARE(search->property("searchText").toString(), u"Ada"_s);
    search->setEnabled(true);
    auto *field = search->property("textField").value<QQuickItem *>();
    field->setProperty("readOnly", true);
    QVERIFY(!search->property("cancelButton").value<QQuickItem *>());
    field->forceActiveFocus();
    press(Qt::Key_Escape);
    QCOMPARE(search->property("searchText").toString(), u"Ada"_s);
}

void tst_Text::searchTab()
{
    QQuickItem *search = show("WSearchField",
                              "searchText: 'Ada'; property Item next: null;"
                              "onTabOnCancelButton: if (next) next.forceActiveFocus()");
    QVERIFY(search);
    QSignalSpy tabbed(search, SIGNAL(tabOnCancelButton()));
    auto *field = search->property("textField").value<QQuickItem *>();
    auto *cancel = search->property("cancelButton").value<QQuickItem *>();
    press(Qt::Key_Tab);
    QCOMPARE(field->hasActiveFocus(), true);
    QCOMPARE(tabbed.count(), 0);
    press(Qt::Key_Tab);
    QCOMPARE(cancel->hasActiveFocus(), true);
    QCOMPARE(tabbed.count(), 0);
    press(Qt::Key_Tab);
    QCOMPARE(tabbed.count(), 1);
    QCOMPARE(find(u"button"_s)->hasActiveFocus(), true);

    // A handler may send the focus elsewhere.
    search->setProperty("next", QVariant::fromValue(field));
    cancel->forceActiveFocus();
    press(Qt::Key_Tab);
    QCOMPARE(tabbed.count(), 2);
    QCOMPARE(field->hasActiveFocus(), true);
}

void tst_Text::searchMirrors()
{
    QQuickItem *search = show("WSearchField", "searchText: 'Ada'; LayoutMirroring.childrenInherit: true");
    QVERIFY(search);
    auto *field = search->property("textField").value<QQuickItem *>();
    auto *cancel = search->property("cancelButton").value<QQuickItem *>();
    const auto x = [&] { return search->mapFromItem(cancel, QPointF()).x(); };
    const double left = field->property("leftPadding").toDouble();
    const double right = field->property("rightPadding").toDouble();
    QCOMPARE(x(), search->width() - 4 - 24);
    QQmlProperty::write(search, u"LayoutMirroring.enabled"_s, true, qmlContext(search));
    QCOMPARE(x(), 4.0);
    QCOMPARE(field->property("leftPadding").toDouble(), right);
    QCOMPARE(field->property("rightPadding").toDouble(), left);
}

void tst_Text::namedValue_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("nameValue");
    QTest::addColumn<QString>("valueName");
    QTest::newRow("both") << "name: 'Codec'; value: 'H.264'"_ba << u"Codec: H.264"_s << u"H.264 :Codec"_s;
    QTest::newRow("name only") << "name: 'Codec'"_ba << u"Codec"_s << u"Codec"_s;
    QTest::newRow("value only") << "value: 'H.264'"_ba << u"H.264"_s << u"H.264"_s;
    QTest::newRow("nothing") << ""_ba << u""_s << u""_s;
}

void tst_Text::namedValue()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, nameValue);
    QFETCH(const QString, valueName);
    QQuickItem *item = show("WNamedValue", properties);
    QVERIFY(item);
    QCOMPARE(item->property("nameValue").toString(), nameValue);
    QCOMPARE(item->property("valueName").toString(), valueName);
    QCOMPARE(item->property("text").toString(), nameValue);
    QCOMPARE(item->width(), item->property("preferredWidth").toDouble());
    QQmlProperty::write(item, u"LayoutMirroring.enabled"_s, true, qmlContext(item));
    QCOMPARE(item->property("text").toString(), valueName);
    QCOMPARE(accessible(item)->text(QAccessible::Name), nameValue);
}

void tst_Text::namedValueShortensTheValue()
{
    QQuickItem *item = show("WNamedValue",
                            "name: 'Connection'; value: 'encrypted from end to end'; maximumWidth: 140;"
                            "valueColorSetName: 'label-error-text'");
    QVERIFY(item);
    QCOMPARE(item->width(), 140.0);
    QVERIFY(item->property("preferredWidth").toDouble() > 140);
    const QList<QQuickItem *> texts = item->childItems();
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts[0]->property("truncated").toBool(), false);
    QCOMPARE(texts[1]->property("truncated").toBool(), true);
    QCOMPARE(texts[0]->property("color").value<QColor>(), application()->getColorSet(u"label-secondary-text"_s).normal);
    QCOMPARE(texts[1]->property("color").value<QColor>(), application()->getColorSet(u"label-error-text"_s).normal);
    item->setProperty("maximumWidth", -1);
    QCOMPARE(item->width(), item->property("preferredWidth").toDouble());
    QTRY_COMPARE(texts[1]->property("truncated").toBool(), false);
}

LUMAKIT_TEST_MAIN(tst_Text)
#include "tst_text.moc"
