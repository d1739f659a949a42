#include <ComponentTest.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlProperty>

using namespace Qt::StringLiterals;

class tst_LkText : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void labelIsPlain();
    void labelColours_data();
    void labelColours();

    void contextMenuOpens_data();
    void contextMenuOpens();
    void contextMenuEntries_data();
    void contextMenuEntries();
    void contextMenuEdits_data();
    void contextMenuEdits();
    void noContextMenu();

    void writingInAField_data();
    void writingInAField();
    void fieldIsCleared_data();
    void fieldIsCleared();
    void clearButtonExistsWhereItHelps_data();
    void clearButtonExistsWhereItHelps();
    void passwordIsShown();
    void fieldIcon_data();
    void fieldIcon();
    void fieldColours_data();
    void fieldColours();
    void fieldTakesTheFocus_data();
    void fieldTakesTheFocus();
    void themeTypeIsThatOfTheParts_data();
    void themeTypeIsThatOfTheParts();

    void inputFieldShowsWhatBelongsToIt();
    void inputFieldColours();
    void titleGivesTheFocus();

    void areaGrowsWithItsText();
    void areaLimit_data();
    void areaLimit();
    void areaLimitByKeyboard();
    void areaLimitAndUndo();
    void areaLimitByPaste_data();
    void areaLimitByPaste();
    void pasteThatFitsIsUndoneAtOnce();
    void areaCounts();
    void areaScrolls();
    void tabLeavesTheArea();
    void areaMenuFromAModel_data();
    void areaMenuFromAModel();
    void areaTakesItsColoursFromATarget();

    void shortcutEditing_data();
    void shortcutEditing();
    void shortcutIsCaptured_data();
    void shortcutIsCaptured();
    void shortcutIsNotTheWindows();
    void shortcutEditingEnds_data();
    void shortcutEditingEnds();
    void readOnlyEndsTheEditing();
    void shortcutStates_data();
    void shortcutStates();
    void longShortcutIsElided();

    void accessibility_data();
    void accessibility();

private:
    static QColor color(const QObject *object, const char *property)
    {
        return QQmlProperty::read(object, QString::fromLatin1(property)).value<QColor>();
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

    static QStringList texts(const QQuickItem *parent)
    {
        QStringList texts;
        for (const QQuickItem *child : itemsWith(parent, "lineHeight")) // a Text
            texts += child->property("text").toString();
        return texts;
    }

    /// The menu that is open; null without.
    QObject *menu() const
    {
        for (QObject *child : root()->findChildren<QObject *>()) {
            if (child->inherits("QQuickMenu") && child->property("opened").toBool())
                return child;
        }
        return nullptr;
    }

    QList<QQuickItem *> entries() const
    {
        QList<QQuickItem *> entries;
        for (int i = 0; i < menu()->property("count").toInt(); ++i) {
            QQuickItem *entry = nullptr;
            QMetaObject::invokeMethod(menu(), "itemAt", Q_RETURN_ARG(QQuickItem *, entry), Q_ARG(int, i));
            entries += entry;
        }
        return entries;
    }

    QString enabledEntries() const
    {
        QStringList enabled;
        for (const QQuickItem *entry : entries()) {
            if (entry->isEnabled())
                enabled += entry->property("text").toString();
        }
        return enabled.join(u", "_s);
    }

    void openMenu(QQuickItem *field)
    {
        field->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Menu);
    }

    void type(const QString &text) const
    {
        for (const QChar letter : text)
            QTest::keyClick(window(), letter.toLatin1());
    }

    QQuickItem *button() const
    {
        const auto buttons = itemsWith(root(), "iconName");
        return buttons.isEmpty() ? nullptr : buttons[0];
    }
};

namespace {
const QString Long = u"Benachrichtigungseinstellungen für Besprechungen und mehr als eine Zeile davon"_s;
}

void tst_LkText::labelIsPlain()
{
    QVERIFY(show("LKLabelBase { text: '<b>Plain</b>' }"));
    QCOMPARE(root()->property("textFormat").toInt(), int(Qt::PlainText));
    const double width = root()->implicitWidth();
    root()->setWidth(width / 2);
    QCOMPARE(root()->property("truncated").toBool(), true);
    application()->setFontScaleFactor(1.5F);
    QCOMPARE_GT(root()->implicitWidth(), width * 1.3);
}

void tst_LkText::labelColours_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("primary") << u"label-primary-text"_s << true;
    QTest::newRow("error") << u"label-error-text"_s << true;
    QTest::newRow("disabled") << u"label-primary-text"_s << false;
}

void tst_LkText::labelColours()
{
    QFETCH(const QString, name);
    QFETCH(const bool, enabled);
    QVERIFY(show("LKLabelBase { text: 'Label' }"));
    root()->setProperty("textColorSetName", name);
    root()->setEnabled(enabled);
    for (const QString &theme : {u"dark"_s, u"default"_s}) {
        application()->setThemeMode(theme);
        QCOMPARE(color(root(), "color"), token(name, enabled ? u"normal"_s : u"disabled"_s));
    }
    root()->setProperty("textColorSetName", QString());
    QCOMPARE(color(root(), "color"), QColor(Qt::transparent));
}

void tst_LkText::contextMenuOpens_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    for (const QByteArray type : {"LKTextFieldBase", "LKTextAreaBase"}) {
        QTest::newRow(type + " by the right button") << type << 0 << Qt::KeyboardModifiers();
        QTest::newRow(type + " by the menu key") << type << int(Qt::Key_Menu) << Qt::KeyboardModifiers();
        QTest::newRow(type + " by Shift and F10")
            << type << int(Qt::Key_F10) << Qt::KeyboardModifiers(Qt::ShiftModifier);
    }
}

void tst_LkText::contextMenuOpens()
{
    QFETCH(const QByteArray, type);
    QFETCH(const int, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QVERIFY(show(type + " { text: 'Words' }"));
    root()->forceActiveFocus(Qt::TabFocusReason);
    QMetaObject::invokeMethod(root(), "selectAll");
    QVERIFY(!menu());
    for (int time = 0; time < 2; ++time) {
        if (key)
            press(Qt::Key(key), modifiers);
        else
            click(root(), QPointF(20, 15), Qt::RightButton);
        QTRY_VERIFY(menu());
        QCOMPARE(root()->property("selectedText").toString(), u"Words"_s);
        press(Qt::Key_Escape);
        QTRY_VERIFY(!menu());
        QTRY_VERIFY(root()->hasActiveFocus());
        QCOMPARE(root()->property("selectedText").toString(), u"Words"_s);
    }
    const QPointer<QObject> unused = root()->property("menu").value<QObject *>();
    QVERIFY(unused);
    root()->setProperty("contextMenu", QVariant::fromValue<QQmlComponent *>(nullptr));
    QTRY_VERIFY(!unused);
}

void tst_LkText::contextMenuEntries_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QString>("enabled");
    const QByteArray field = "LKTextFieldBase { text: 'Words'; ";
    const QByteArray area = "LKTextAreaBase { text: 'Words'; ";
    QTest::newRow("field") << field + "}" << false << QString() << u"Select all"_s;
    QTest::newRow("field, selected") << field + "}" << true << QString() << u"Cut, Copy, Select all"_s;
    QTest::newRow("field, to paste") << field + "}" << false << u"x"_s << u"Paste, Select all"_s;
    QTest::newRow("field, read-only") << field + "readOnly: true }" << true << u"x"_s << u"Copy, Select all"_s;
    QTest::newRow("password") << field + "echoMode: TextInput.Password }" << true << u"x"_s << u"Paste, Select all"_s;
    QTest::newRow("empty field") << QByteArray("LKTextFieldBase {}") << false << QString() << QString();
    QTest::newRow("area") << area + "}" << false << QString() << u"Select all"_s;
    QTest::newRow("area, selected") << area + "}" << true << u"x"_s << u"Cut, Copy, Paste, Select all"_s;
    QTest::newRow("area, read-only") << area + "readOnly: true }" << true << u"x"_s << u"Copy, Select all"_s;
}

void tst_LkText::contextMenuEntries()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const bool, selected);
    QFETCH(const QString, clipboard);
    QFETCH(const QString, enabled);
    if (clipboard.isEmpty())
        QGuiApplication::clipboard()->clear();
    else
        QGuiApplication::clipboard()->setText(clipboard);
    QVERIFY(show(qml));
    root()->forceActiveFocus(Qt::TabFocusReason);
    if (selected)
        QMetaObject::invokeMethod(root(), "selectAll");
    QTRY_COMPARE(root()->property("canPaste").toBool(), !clipboard.isEmpty() && !root()->property("readOnly").toBool());
    press(Qt::Key_Menu);
    QTRY_VERIFY(menu());
    QCOMPARE(entries().size(), 4);
    QCOMPARE(enabledEntries(), enabled);
}

void tst_LkText::contextMenuEdits_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("clipboard");
    for (const QByteArray type : {"LKTextFieldBase", "LKTextAreaBase"}) {
        QTest::newRow(type + ", cut") << type << 0 << QString() << u"Words"_s;
        QTest::newRow(type + ", copy") << type << 1 << u"Words"_s << u"Words"_s;
        QTest::newRow(type + ", paste") << type << 2 << u"new"_s << u"new"_s;
        QTest::newRow(type + ", select all") << type << 3 << u"Words"_s << u"new"_s;
    }
}

void tst_LkText::contextMenuEdits()
{
    QFETCH(const QByteArray, type);
    QFETCH(const int, entry);
    QFETCH(const QString, text);
    QFETCH(const QString, clipboard);
    QGuiApplication::clipboard()->setText(u"new"_s);
    QVERIFY(show(type + " { text: 'Words' }"));
    root()->forceActiveFocus(Qt::TabFocusReason);
    QMetaObject::invokeMethod(root(), "selectAll");
    QTRY_VERIFY(root()->property("canPaste").toBool());
    press(Qt::Key_Menu);
    QTRY_VERIFY(menu());
    QMetaObject::invokeMethod(entries()[entry], "click");
    QTRY_VERIFY(!menu());
    QCOMPARE(root()->property("text").toString(), text);
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), clipboard);
}

void tst_LkText::noContextMenu()
{
    QVERIFY(show("LKTextFieldBase { contextMenu: null }"));
    openMenu(root());
    click(root(), Qt::RightButton);
    QVERIFY(!menu());
    QVERIFY(root()->hasActiveFocus());
}

void tst_LkText::writingInAField_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("LKTextField") << QByteArray("LKTextField");
    QTest::newRow("LKTextInputField") << QByteArray("LKTextInputField");
}

void tst_LkText::writingInAField()
{
    QFETCH(const QByteArray, type);
    QVERIFY(show(type + " { maximumLength: 4 }"));
    QSignalSpy accepted(root(), SIGNAL(accepted()));
    QSignalSpy edited(root(), SIGNAL(textEdited()));
    press(Qt::Key_Tab);
    QVERIFY(item(root(), "textField")->hasActiveFocus());
    this->type(u"abcdef"_s);
    QCOMPARE(root()->property("text").toString(), u"abcd"_s);
    QCOMPARE(edited.count(), 4);
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    QCOMPARE(accepted.count(), 2);
    root()->setProperty("text", u"host"_s);
    QCOMPARE(edited.count(), 4);
    QCOMPARE(item(root(), "textField")->property("text").toString(), u"host"_s);
    root()->setProperty("readOnly", true);
    this->type(u"x"_s);
    QCOMPARE(root()->property("text").toString(), u"host"_s);
    root()->setEnabled(false);
    QVERIFY(!item(root(), "textField")->hasActiveFocus());
}

void tst_LkText::fieldIsCleared_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("by mouse") << 0;
    QTest::newRow("by Space") << int(Qt::Key_Space);
    QTest::newRow("by Return") << int(Qt::Key_Return);
}

void tst_LkText::fieldIsCleared()
{
    QFETCH(const int, key);
    QVERIFY(show("LKTextField { text: 'Words' }"));
    QSignalSpy cleared(root(), SIGNAL(cleared()));
    QVERIFY(button());
    if (key) {
        press(Qt::Key_Tab);
        press(Qt::Key_Tab);
        QVERIFY(button()->hasActiveFocus());
        press(Qt::Key(key));
    } else {
        click(button());
    }
    QCOMPARE(cleared.count(), 1);
    QCOMPARE(root()->property("text").toString(), QString());
    QVERIFY(item(root(), "textField")->hasActiveFocus());
    QTRY_VERIFY(!button());
}

void tst_LkText::clearButtonExistsWhereItHelps_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("icon");
    QTest::newRow("text") << QByteArray("text: 'Words'") << u"close-bold"_s;
    QTest::newRow("none") << QByteArray() << QString();
    QTest::newRow("read-only") << QByteArray("text: 'Words'; readOnly: true") << QString();
    QTest::newRow("disabled") << QByteArray("text: 'Words'; enabled: false") << QString();
    QTest::newRow("not wanted") << QByteArray("text: 'Words'; isClearButtonVisible: false") << QString();
    QTest::newRow("password") << QByteArray("text: 'Words'; isPasswordInput: true") << u"eye"_s;
    QTest::newRow("empty password") << QByteArray("isPasswordInput: true") << QString();
}

void tst_LkText::clearButtonExistsWhereItHelps()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, icon);
    QVERIFY(show("LKTextField { " + properties + " }"));
    QCOMPARE(button() ? button()->property("iconName").toString() : QString(), icon);
    const auto *field = item(root(), "textField");
    QCOMPARE(field->property("rightPadding").toReal(), icon.isEmpty() ? 8.0 : 32.0);
}

void tst_LkText::passwordIsShown()
{
    QVERIFY(show("LKTextField { text: 'secret'; isPasswordInput: true }"));
    const auto *field = item(root(), "textField");
    QCOMPARE(field->property("displayText").toString(), QString(6, field->property("passwordCharacter").toString()[0]));
    for (const bool shown : {true, false}) {
        click(button());
        QCOMPARE(root()->property("isPasswordVisible").toBool(), shown);
        QCOMPARE(field->property("displayText").toString() == u"secret"_s, shown);
        QCOMPARE(button()->property("iconName").toString(), shown ? u"eye-off"_s : u"eye"_s);
    }
    QCOMPARE(root()->property("text").toString(), u"secret"_s);
}

void tst_LkText::fieldIcon_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_LkText::fieldIcon()
{
    QFETCH(const bool, mirrored);
    QVERIFY(show("LKTextField { property bool rtl; LayoutMirroring.enabled: rtl; LayoutMirroring.childrenInherit: "
                 "true; text: 'Words' }"));
    root()->setProperty("rtl", mirrored);
    const auto *field = item(root(), "textField");
    const char *side = mirrored ? "rightPadding" : "leftPadding";
    QCOMPARE(field->property(side).toReal(), 8.0);
    QCOMPARE(button()->mapToScene({}).x(), mirrored ? 4.0 : root()->width() - 28);
    root()->setProperty("leftIcon", u"lock"_s);
    QCOMPARE(field->property(side).toReal(), 32.0);
    const auto isLock = [](const QQuickItem *icon) { return icon->property("svgName").toString() == u"lock"_s; };
    const auto icons = itemsWith(root(), "svgName");
    const auto lock = std::ranges::find_if(icons, isLock);
    QVERIFY(lock != icons.end());
    QCOMPARE((*lock)->mapToScene({}).x(), mirrored ? root()->width() - 24 : 8.0);
    QCOMPARE((*lock)->size(), QSizeF(16, 16));
    root()->setProperty("isLeftIconVisible", false);
    QCOMPARE(field->property(side).toReal(), 8.0);
}

void tst_LkText::fieldColours_data()
{
    QTest::addColumn<bool>("error");
    QTest::addColumn<QString>("state");
    for (const char *state : {"normal", "hovered", "focused", "disabled"}) {
        QTest::addRow("%s", state) << false << QString::fromLatin1(state);
        QTest::addRow("error, %s", state) << true << QString::fromLatin1(state);
    }
}

void tst_LkText::fieldColours()
{
    QFETCH(const bool, error);
    QFETCH(const QString, state);
    QVERIFY(show("Item { width: 300; height: 100; LKTextField { objectName: 'field'; x: 20; y: 20; text: 'Words' } }"));
    auto *control = find(u"field"_s);
    const auto *field = item(control, "textField");
    moveMouseAway();
    control->setProperty("showErrorState", error);
    control->setEnabled(state != "disabled"_L1);
    if (state == "hovered"_L1)
        moveMouseTo(control);
    else if (state == "focused"_L1)
        control->forceActiveFocus();
    const QString prefix = error ? u"textinput-error-"_s : u"textinput-"_s;
    const auto expected = [&](const QString &name) {
        const WColorSet set = application()->getColorSet(prefix + name);
        return set.getColor(state);
    };
    for (const QString &theme : {u"highcontrast"_s, u"default"_s}) {
        application()->setThemeMode(theme);
        QTRY_COMPARE(color(item(field, "background"), "color"), expected(u"background"_s));
        QCOMPARE(color(item(field, "background"), "border.color"), expected(u"border"_s));
        QCOMPARE(color(field, "color"), expected(u"text"_s));
    }
}

void tst_LkText::fieldTakesTheFocus_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("inner");
    QTest::newRow("LKTextField") << QByteArray("LKTextField") << QByteArray("textField");
    QTest::newRow("LKTextInputField") << QByteArray("LKTextInputField") << QByteArray("textField");
    QTest::newRow("LKTextArea") << QByteArray("LKTextArea") << QByteArray("textArea");
}

void tst_LkText::fieldTakesTheFocus()
{
    QFETCH(const QByteArray, type);
    QFETCH(const QByteArray, inner);
    QVERIFY(show("Item { " + type + " { objectName: 'field' } WButton { objectName: 'other'; y: 100 } }"));
    auto *field = item(find(u"field"_s), inner);
    find(u"other"_s)->forceActiveFocus();
    find(u"field"_s)->forceActiveFocus();
    QTRY_VERIFY(field->hasActiveFocus());
    press(Qt::Key_Tab);
    QVERIFY(find(u"other"_s)->hasActiveFocus());
    press(Qt::Key_Backtab);
    QVERIFY(field->hasActiveFocus());
    find(u"other"_s)->forceActiveFocus();
    click(field);
    QVERIFY(field->hasActiveFocus());
}

void tst_LkText::themeTypeIsThatOfTheParts_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QByteArray>("part");
    QTest::newRow("LKTextField") << QByteArray("LKTextField {}") << QByteArray("textField");
    QTest::newRow("LKTextInputField") << QByteArray("LKTextInputField {}") << QByteArray("textField");
    QTest::newRow("LKTextArea") << QByteArray("LKTextArea {}") << QByteArray("textArea");
}

void tst_LkText::themeTypeIsThatOfTheParts()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QByteArray, part);
    QVERIFY(show(qml));
    const auto *field = item(root(), part);
    QCOMPARE(field->property("themeType"), application()->property("themeMode"));
    root()->setProperty("themeType", u"custom"_s);
    QCOMPARE(field->property("themeType").toString(), u"custom"_s);
}

void tst_LkText::inputFieldShowsWhatBelongsToIt()
{
    QVERIFY(show("LKTextInputField { width: 200 }"));
    const double height = root()->implicitHeight();
    QCOMPARE(height, 32.0);
    root()->setProperty("titleText", u"Meeting number"_s);
    root()->setProperty("infoTest", u"<b>Nine</b> digits"_s);
    QVERIFY(texts(root()).contains(u"Meeting number"_s));
    QVERIFY(texts(root()).contains(u"<b>Nine</b> digits"_s));
    QTRY_COMPARE_GT(root()->implicitHeight(), height + 30);
    const double withTexts = root()->implicitHeight();
    root()->setProperty("infoTest", Long);
    root()->setProperty("titleText", Long);
    QTRY_COMPARE_GT(root()->implicitHeight(), withTexts + 30); // they wrap
    for (const QQuickItem *text : itemsWith(root(), "truncated"))
        QVERIFY2(!text->property("truncated").toBool(), qPrintable(text->property("text").toString()));

    const auto hasSearchIcon = [this] {
        return std::ranges::any_of(itemsWith(root(), "svgName"), [](const QQuickItem *icon) {
            return icon->property("svgName").toString() == u"search"_s;
        });
    };
    QVERIFY(!hasSearchIcon());
    root()->setProperty("searchIconVisible", true);
    QVERIFY(hasSearchIcon());
    root()->setProperty("placeholderText", u"Name"_s);
    root()->setProperty("isPasswordInput", true);
    QCOMPARE(item(root(), "textField")->property("placeholderText").toString(), u"Name"_s);
    QCOMPARE(item(root(), "textField")->property("echoMode").toInt(), 2);
}

void tst_LkText::inputFieldColours()
{
    QVERIFY(show("LKTextInputField { titleText: 'Title'; infoTest: 'Info' }"));
    const auto colorOf = [this](const QString &text) {
        for (const QQuickItem *child : itemsWith(root(), "lineHeight")) {
            if (child->property("text").toString() == text)
                return color(child, "color");
        }
        return QColor();
    };
    QCOMPARE(colorOf(u"Title"_s), token(u"label-primary-text"_s));
    QCOMPARE(colorOf(u"Info"_s), token(u"label-secondary-text"_s));
    root()->setProperty("showErrorState", true);
    QCOMPARE(colorOf(u"Info"_s), token(u"label-error-text"_s));
    QCOMPARE(color(item(root(), "textField"), "color"), token(u"textinput-error-text"_s));
    root()->setEnabled(false);
    QCOMPARE(colorOf(u"Title"_s), token(u"label-primary-text"_s, u"disabled"_s));
}

void tst_LkText::titleGivesTheFocus()
{
    QVERIFY(show("LKTextInputField { titleText: 'Title' }"));
    click(root(), QPointF(5, 5));
    QTRY_VERIFY(item(root(), "textField")->hasActiveFocus());
}

void tst_LkText::areaGrowsWithItsText()
{
    QVERIFY(show("LKTextArea { width: 200; text: 'One' }"));
    const double height = root()->implicitHeight();
    root()->setProperty("text", Long + Long);
    QTRY_COMPARE_GT(root()->implicitHeight(), height + 20);
    const double high = root()->implicitHeight();
    root()->setProperty("maxCharacters", 500);
    QCOMPARE_GT(root()->implicitHeight(), high + 12); // the counter
    QCOMPARE(root()->height(), root()->implicitHeight());
}

void tst_LkText::areaLimit_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    QTest::newRow("none") << 0 << Long << Long;
    QTest::newRow("negative") << -1 << Long << Long;
    QTest::newRow("not reached") << 5 << u"four"_s << u"four"_s;
    QTest::newRow("reached") << 4 << u"four"_s << u"four"_s;
    QTest::newRow("exceeded") << 4 << u"fourteen"_s << u"four"_s;
    QTest::newRow("lines") << 4 << u"a\nb\nc"_s << u"a\nb\n"_s;
    QTest::newRow("no half characters") << 2 << u"a\U0001F600"_s << u"a"_s;
}

void tst_LkText::areaLimit()
{
    QFETCH(const int, maximum);
    QFETCH(const QString, text);
    QFETCH(const QString, kept);
    QVERIFY(show("LKTextArea {}"));
    root()->setProperty("maxCharacters", maximum);
    root()->setProperty("text", text);
    QCOMPARE(root()->property("text").toString(), kept);
    root()->setProperty("maxCharacters", 0);
    root()->setProperty("text", text);
    root()->setProperty("maxCharacters", maximum); // afterwards
    QCOMPARE(root()->property("text").toString(), kept);
}

void tst_LkText::areaLimitByKeyboard()
{
    QVERIFY(show("LKTextArea { maxCharacters: 4 }"));
    auto *area = item(root(), "textArea");
    area->forceActiveFocus();
    type(u"abcdef"_s);
    QCOMPARE(root()->property("text").toString(), u"abcd"_s);
    area->setProperty("cursorPosition", 1);
    type(u"x"_s); // nothing behind the cursor goes
    QCOMPARE(root()->property("text").toString(), u"abcd"_s);
    QCOMPARE(area->property("cursorPosition").toInt(), 1);
    press(Qt::Key_Return);
    QCOMPARE(root()->property("text").toString(), u"abcd"_s);
    press(Qt::Key_Delete);
    QCOMPARE(root()->property("text").toString(), u"acd"_s);
    type(u"xy"_s);
    QCOMPARE(root()->property("text").toString(), u"axcd"_s);
    press(Qt::Key_Backspace);
    QCOMPARE(root()->property("text").toString(), u"acd"_s);
    QMetaObject::invokeMethod(area, "selectAll");
    type(u"x"_s); // in place of what is selected
    QCOMPARE(root()->property("text").toString(), u"x"_s);
}

void tst_LkText::areaLimitAndUndo()
{
    QVERIFY(show("LKTextArea { maxCharacters: 3 }"));
    item(root(), "textArea")->forceActiveFocus();
    type(u"abcdef"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(root()->property("text").toString(), QString());
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(root()->property("text").toString(), u"abc"_s);
}

void tst_LkText::areaLimitByPaste_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("byMenu");
    QTest::addColumn<QString>("text");
    QTest::newRow("at the end") << 3 << false << false << u"abc12"_s;
    QTest::newRow("in the middle") << 1 << false << false << u"a12bc"_s;
    QTest::newRow("in place of all") << 0 << true << false << u"12345"_s;
    QTest::newRow("by the menu") << 1 << false << true << u"a12bc"_s;
}

void tst_LkText::areaLimitByPaste()
{
    QFETCH(const int, position);
    QFETCH(const bool, selected);
    QFETCH(const bool, byMenu);
    QFETCH(const QString, text);
    QGuiApplication::clipboard()->setText(u"123456789"_s);
    QVERIFY(show("LKTextArea { text: 'abc'; maxCharacters: 5 }"));
    auto *area = item(root(), "textArea");
    area->forceActiveFocus();
    area->setProperty("cursorPosition", position);
    if (selected)
        QMetaObject::invokeMethod(area, "selectAll");
    QTRY_VERIFY(area->property("canPaste").toBool());
    if (byMenu) {
        press(Qt::Key_Menu);
        QTRY_VERIFY(menu());
        QMetaObject::invokeMethod(entries()[2], "click");
    } else {
        press(Qt::Key_V, Qt::ControlModifier);
    }
    QTRY_COMPARE(root()->property("text").toString(), text);
}

void tst_LkText::pasteThatFitsIsUndoneAtOnce()
{
    QGuiApplication::clipboard()->setText(u"new"_s);
    QVERIFY(show("LKTextArea { text: 'old'; maxCharacters: 5 }"));
    auto *area = item(root(), "textArea");
    area->forceActiveFocus();
    QMetaObject::invokeMethod(area, "selectAll");
    QTRY_VERIFY(area->property("canPaste").toBool());
    press(Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE(root()->property("text").toString(), u"new"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(root()->property("text").toString(), u"old"_s);
}

void tst_LkText::areaCounts()
{
    QVERIFY(show("LKTextArea { text: 'abc' }"));
    const auto counter = [this] { return texts(root()).filter(u"/"_s).join(u""_s); };
    const auto counterColor = [this] {
        for (const QQuickItem *child : itemsWith(root(), "lineHeight")) {
            if (child->property("text").toString().contains(u'/'))
                return color(child, "color");
        }
        return QColor();
    };
    QCOMPARE(counter(), QString());
    root()->setProperty("maxCharacters", 4);
    QCOMPARE(counter(), u"3/4"_s);
    QCOMPARE(counterColor(), token(u"label-secondary-text"_s));
    root()->setProperty("text", u"abcd"_s);
    QCOMPARE(counter(), u"4/4"_s);
    QCOMPARE(counterColor(), token(u"label-error-text"_s));
}

void tst_LkText::areaScrolls()
{
    QVERIFY(show("LKTextArea { width: 200; height: 80 }"));
    const auto bar = [this]() -> QQuickItem * {
        for (QQuickItem *child : itemsWith(root(), "position")) {
            if (child->inherits("QQuickScrollBar"))
                return child;
        }
        return nullptr;
    };
    auto *area = item(root(), "textArea");
    QVERIFY(!bar());
    root()->setProperty("text", QString(Long + u'\n').repeated(4));
    QTRY_VERIFY(bar());
    const double full = area->property("contentHeight").toReal() + 16;
    QCOMPARE(bar()->property("size").toReal(), 80 / full);
    QCOMPARE(bar()->property("position").toReal(), 0.0);
    QTest::wheelEvent(window(), {50, 40}, {0, -120});
    QTRY_COMPARE_GT(area->property("scrollY").toReal(), 10);
    QCOMPARE(bar()->property("position").toReal(), area->property("scrollY").toReal() / full);
    // By its handle to the end; the host's own writing of the position does not undo it.
    bar()->setProperty("position", 1 - 80 / full);
    QCOMPARE(area->property("scrollY").toReal(), full - 80);
    area->forceActiveFocus();
    press(Qt::Key_Home, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Home, Qt::ControlModifier);
    QTRY_COMPARE(bar()->property("position").toReal(), 0.0);
    root()->setProperty("text", u"short"_s);
    QTRY_VERIFY(!bar());
}

void tst_LkText::tabLeavesTheArea()
{
    QVERIFY(show("Item { LKTextArea { objectName: 'area' } WButton { objectName: 'next'; y: 100 } }"));
    press(Qt::Key_Tab);
    QVERIFY(item(find(u"area"_s), "textArea")->hasActiveFocus());
    press(Qt::Key_Tab);
    QVERIFY(find(u"next"_s)->hasActiveFocus());
    QCOMPARE(find(u"area"_s)->property("text").toString(), QString());
}

void tst_LkText::areaMenuFromAModel_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("the usual one") << QByteArray("null")
                                   << QStringList{u"Cut"_s, u"Copy"_s, u"Paste"_s, u"Select all"_s} << u"Select all"_s;
    QTest::newRow("texts") << QByteArray("['One', '<b>Two</b>']") << QStringList{u"One"_s, u"<b>Two</b>"_s}
                           << u"One, <b>Two</b>"_s;
    QTest::newRow("objects") << QByteArray("[{ text: 'One', enabled: false }, { text: 'Two' }]")
                             << QStringList{u"One"_s, u"Two"_s} << u"Two"_s;
    QTest::newRow("a list model") << QByteArray("list") << QStringList{u"One"_s, u"Two"_s} << u"One"_s;
    QTest::newRow("none") << QByteArray("[]") << QStringList() << QString();
}

void tst_LkText::areaMenuFromAModel()
{
    QFETCH(const QByteArray, model);
    QFETCH(const QStringList, texts);
    QFETCH(const QString, enabled);
    QGuiApplication::clipboard()->clear();
    QVERIFY(show("LKTextArea { text: 'Words'; menuModel: " + model
                 + "; property ListModel list: ListModel { id: list; ListElement { text: 'One'; enabled: true } "
                   "ListElement { text: 'Two'; enabled: false } } }"));
    QSignalSpy triggered(root(), SIGNAL(menuTriggered(int)));
    auto *area = item(root(), "textArea");
    openMenu(area);
    if (texts.isEmpty()) {
        QVERIFY(!menu());
        return;
    }
    QTRY_VERIFY(menu());
    QStringList shown;
    for (const QQuickItem *entry : entries())
        shown += entry->property("text").toString();
    QCOMPARE(shown, texts);
    QCOMPARE(enabledEntries(), enabled);
    const auto all = entries();
    const auto lastEnabled = std::find_if(all.rbegin(), all.rend(), std::mem_fn(&QQuickItem::isEnabled));
    QMetaObject::invokeMethod(*lastEnabled, "click");
    QTRY_VERIFY(!menu());
    QCOMPARE(triggered.count(), model == "null" ? 0 : 1);
    if (model != "null")
        QCOMPARE(triggered[0][0].toInt(), texts.indexOf(enabled.section(u", "_s, -1)));
}

void tst_LkText::areaTakesItsColoursFromATarget()
{
    QVERIFY(show("LKTextAreaBase { id: area; text: 'Words'; property Item frame: Item { enabled: false } }"));
    moveMouseAway();
    QTRY_COMPARE(color(item(root(), "background"), "color"), token(u"textinput-background"_s));
    root()->setProperty("controlsTarget", root()->property("frame"));
    QCOMPARE(color(item(root(), "background"), "color"), token(u"textinput-background"_s, u"disabled"_s));
    QCOMPARE(color(root(), "color"), token(u"textinput-text"_s, u"disabled"_s));
    LogRecorder log;
    delete root()->property("frame").value<QObject *>(); // without it the area is its own target again
    QCOMPARE(log.texts(), QStringList());
    QCOMPARE(color(item(root(), "background"), "color"), token(u"textinput-background"_s));
    QCOMPARE(color(root(), "color"), token(u"textinput-text"_s));
}

void tst_LkText::shortcutEditing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<bool>("begins");
    QTest::newRow("by mouse") << 0 << QByteArray() << true;
    QTest::newRow("by Return") << int(Qt::Key_Return) << QByteArray() << true;
    QTest::newRow("by Enter") << int(Qt::Key_Enter) << QByteArray() << true;
    QTest::newRow("by Space") << int(Qt::Key_Space) << QByteArray() << true;
    QTest::newRow("by another key") << int(Qt::Key_A) << QByteArray() << false;
    QTest::newRow("read-only, by mouse") << 0 << QByteArray("isReadOnly: true") << false;
    QTest::newRow("read-only, by Return") << int(Qt::Key_Return) << QByteArray("isReadOnly: true") << false;
    QTest::newRow("disabled, by mouse") << 0 << QByteArray("enabled: false") << false;
}

void tst_LkText::shortcutEditing()
{
    QFETCH(const int, key);
    QFETCH(const QByteArray, properties);
    QFETCH(const bool, begins);
    QVERIFY(show("LKShortcutsLabel { labelText: 'Ctrl + A'; " + properties + " }"));
    if (key) {
        press(Qt::Key_Tab);
        QVERIFY(root()->hasActiveFocus());
        press(Qt::Key(key));
    } else {
        click(root());
    }
    QCOMPARE(root()->property("isInEditMode").toBool(), begins);
    press(Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(root()->property("labelText").toString(), begins ? u"Ctrl + M"_s : u"Ctrl + A"_s);
}

void tst_LkText::shortcutIsCaptured_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text) {
        QTest::newRow(name) << int(key) << modifiers << text;
    };
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    row("one modifier", Qt::Key_M, control, u"Ctrl + M"_s);
    row("two modifiers", Qt::Key_M, control | Qt::ShiftModifier, u"Ctrl + Shift + M"_s);
    row("Tab with a modifier", Qt::Key_Tab, control, u"Ctrl + Tab"_s);
    row("Space with a modifier", Qt::Key_Space, control, u"Ctrl + Space"_s);
    row("on the keypad", Qt::Key_5, control | Qt::KeypadModifier, u"Ctrl + 5"_s);
    row("a function key", Qt::Key_F5, Qt::NoModifier, u"F5"_s);
    row("a letter alone", Qt::Key_M, Qt::NoModifier, QString());
    row("a modifier alone", Qt::Key_Control, control, QString());
}

void tst_LkText::shortcutIsCaptured()
{
    QFETCH(const int, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const QString, text);
    QVERIFY(show("LKShortcutsLabel { labelText: 'Ctrl + A' }"));
    QSignalSpy captured(root(), SIGNAL(captured(int, int)));
    root()->setProperty("isInEditMode", true);
    QVERIFY(root()->hasActiveFocus());
    press(Qt::Key(key), modifiers);
    QCOMPARE(root()->property("labelText").toString(), text.isEmpty() ? u"Ctrl + A"_s : text);
    QCOMPARE(captured.count(), text.isEmpty() ? 0 : 1);
    if (!text.isEmpty()) {
        QCOMPARE(captured[0][0].toInt(), (modifiers & ~Qt::KeypadModifier).toInt());
        QCOMPARE(captured[0][1].toInt(), key);
        QVERIFY(texts(root()).contains(text));
    }
    QCOMPARE(root()->property("isInEditMode").toBool(), true);
}

void tst_LkText::shortcutIsNotTheWindows()
{
    QVERIFY(show("LKShortcutsLabel { Shortcut { objectName: 'shortcut'; sequence: 'Ctrl+S' } }"));
    QSignalSpy activated(find<QObject>(u"shortcut"_s), SIGNAL(activated()));
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(activated.count(), 1);
    root()->setProperty("isInEditMode", true);
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(root()->property("labelText").toString(), u"Ctrl + S"_s);
}

void tst_LkText::shortcutEditingEnds_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("finished");
    QTest::addColumn<int>("canceled");
    QTest::newRow("by Return") << int(Qt::Key_Return) << u"Ctrl + M"_s << 1 << 0;
    QTest::newRow("by Enter") << int(Qt::Key_Enter) << u"Ctrl + M"_s << 1 << 0;
    QTest::newRow("by Escape") << int(Qt::Key_Escape) << u"Ctrl + A"_s << 0 << 1;
    QTest::newRow("by Tab") << int(Qt::Key_Tab) << u"Ctrl + M"_s << 1 << 0;
    QTest::newRow("by Backtab") << int(Qt::Key_Backtab) << u"Ctrl + M"_s << 1 << 0;
    QTest::newRow("not by Backspace") << int(Qt::Key_Backspace) << QString() << 0 << 0;
    QTest::newRow("not by Delete") << int(Qt::Key_Delete) << QString() << 0 << 0;
}

void tst_LkText::shortcutEditingEnds()
{
    QFETCH(const int, key);
    QFETCH(const QString, text);
    QFETCH(const int, finished);
    QFETCH(const int, canceled);
    QVERIFY(show("Item { LKShortcutsLabel { objectName: 'label'; labelText: 'Ctrl + A' } WButton { y: 50 } }"));
    auto *label = find(u"label"_s);
    QSignalSpy finishedSpy(label, SIGNAL(editFinished()));
    QSignalSpy canceledSpy(label, SIGNAL(editCanceled()));
    QSignalSpy captured(label, SIGNAL(captured(int, int)));
    label->setProperty("isInEditMode", true);
    press(Qt::Key_M, Qt::ControlModifier);
    press(Qt::Key(key));
    QCOMPARE(label->property("labelText").toString(), text);
    QCOMPARE(label->property("isInEditMode").toBool(), finished + canceled == 0);
    QCOMPARE(finishedSpy.count(), finished);
    QCOMPARE(canceledSpy.count(), canceled);
    QCOMPARE(captured.count(), text.isEmpty() ? 2 : 1);
}

void tst_LkText::readOnlyEndsTheEditing()
{
    QVERIFY(show("LKShortcutsLabel { labelText: 'Ctrl + A' }"));
    QSignalSpy finished(root(), SIGNAL(editFinished()));
    QSignalSpy canceled(root(), SIGNAL(editCanceled()));
    root()->setProperty("isInEditMode", true);
    press(Qt::Key_M, Qt::ControlModifier);
    root()->setProperty("isReadOnly", true);
    QCOMPARE(root()->property("isInEditMode").toBool(), false);
    QCOMPARE(root()->property("labelText").toString(), u"Ctrl + A"_s);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(canceled.count(), 1);
}

void tst_LkText::shortcutStates_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("description");
    const auto row = [](const char *name, const QByteArray &property, const QString &group, const QString &icon,
                        const QString &description) {
        QTest::newRow(name) << property << u"shortcutinput-"_s + group + u'-' << icon << description;
    };
    row("at rest", "", u"inactive"_s, QString(), u"Ctrl + A"_s);
    row("selected", "isSelected", u"active-populated"_s, QString(), u"Ctrl + A"_s);
    row("edited", "isInEditMode", u"active-populated"_s, QString(), u"Ctrl + A"_s);
    row("unavailable", "isUnavailable", u"active-unavailable"_s, u"error-filled"_s, u"Ctrl + A, Not available"_s);
    row("available", "isAvailable", u"active-available"_s, u"check-bold"_s, u"Ctrl + A, Available"_s);
    row("checking", "isChecking", u"active-checking"_s, u"spinner"_s, u"Ctrl + A, Checking"_s);
    row("read-only", "isReadOnly", u"inactive"_s, u"lock"_s, u"Ctrl + A, Read-only"_s);
}

void tst_LkText::shortcutStates()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QString, prefix);
    QFETCH(const QString, icon);
    QFETCH(const QString, description);
    QVERIFY(show("Item { LKShortcutsLabel { objectName: 'label'; labelText: 'Ctrl + A'; accessibleName: 'Mute' } }"));
    auto *label = find(u"label"_s);
    if (!property.isEmpty())
        label->setProperty(property, true);
    label->setFocus(false);
    if (property == "isInEditMode")
        label->setProperty("isInEditMode", true);
    moveMouseAway();
    const QString state = label->hasActiveFocus() ? u"focused"_s : u"normal"_s;
    QQuickItem *frame = itemsWith(label, "radius").constFirst();
    QQuickItem *chip = itemsWith(frame, "radius").constFirst();
    QTRY_COMPARE(color(frame, "color"), token(prefix + u"background"_s, state));
    QCOMPARE(color(frame, "border.color"), token(prefix + u"border"_s, state));
    QCOMPARE(color(chip, "color"), token(prefix + u"textBackground"_s, state));
    QCOMPARE(color(itemsWith(chip, "lineHeight").constFirst(), "color"), token(prefix + u"text"_s, state));
    const auto icons = itemsWith(label, "svgName");
    QCOMPARE(icons.isEmpty() ? QString() : icons[0]->property("svgName").toString(), icon);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(label);
    QCOMPARE(interface->text(QAccessible::Name), u"Mute"_s);
    QCOMPARE(interface->text(QAccessible::Description), description);
    label->setProperty("labelText", QString());
    const bool isEdited = property == "isInEditMode";
    QVERIFY(texts(label).contains(isEdited ? u"Press keys"_s : u"None"_s));
}

void tst_LkText::longShortcutIsElided()
{
    QVERIFY(show("LKShortcutsLabel { labelText: 'Ctrl + Alt + Shift + PgDown'; isAvailable: true }"));
    auto *text = itemsWith(root(), "lineHeight").constFirst();
    QCOMPARE(text->property("truncated").toBool(), false);
    root()->setWidth(140);
    QTRY_COMPARE(text->property("truncated").toBool(), true);
    const auto *icon = itemsWith(root(), "svgName").constFirst();
    QCOMPARE_LE(text->mapToScene({text->width(), 0}).x(), icon->mapToScene({}).x());
}

void tst_LkText::accessibility_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QByteArray>("inner");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *name, const QByteArray &qml, const QByteArray &inner, QAccessible::Role role,
                        const QString &text) { QTest::newRow(name) << qml << inner << role << text; };
    row("label", "LKLabelBase { text: 'Label' }", "", QAccessible::StaticText, u"Label"_s);
    row("field", "LKTextField { placeholderText: 'Number' }", "textField", QAccessible::EditableText, u"Number"_s);
    row("named field", "LKTextField { placeholderText: 'Number'; accessibleName: 'Meeting' }", "textField",
        QAccessible::EditableText, u"Meeting"_s);
    row("input field", "LKTextInputField { placeholderText: 'Number'; titleText: 'Title' }", "textField",
        QAccessible::EditableText, u"Title"_s);
    row("named input field", "LKTextInputField { titleText: 'Title'; accessibleName: 'Meeting' }", "textField",
        QAccessible::EditableText, u"Meeting"_s);
    row("area", "LKTextArea { placeholderText: 'Notes' }", "textArea", QAccessible::EditableText, u"Notes"_s);
    row("named area", "LKTextArea { placeholderText: 'Notes'; accessibleName: 'Meeting' }", "textArea",
        QAccessible::EditableText, u"Meeting"_s);
    row("shortcut", "LKShortcutsLabel { labelText: 'Ctrl + A' }", "", QAccessible::HotkeyField, u"Ctrl + A"_s);
    row("no shortcut", "LKShortcutsLabel {}", "", QAccessible::HotkeyField, u"None"_s);
    row("button of a field", "LKTextField { text: 'Words' }", "button", QAccessible::Button, u"Clear"_s);
    row("button of a password", "LKTextField { text: 'Words'; isPasswordInput: true }", "button", QAccessible::Button,
        u"Show password"_s);
}

void tst_LkText::accessibility()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QByteArray, inner);
    QFETCH(const QAccessible::Role, role);
    QFETCH(const QString, name);
    QVERIFY(show(qml));
    QAccessible::setActive(true);
    QQuickItem *target = inner.isEmpty() ? root() : inner == "button" ? button() : item(root(), inner);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(target);
    QVERIFY(interface);
    QCOMPARE(interface->role(), role);
    QCOMPARE(interface->text(QAccessible::Name), name);
    if (role == QAccessible::HotkeyField) {
        interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(root()->property("isInEditMode").toBool(), true);
    } else if (role == QAccessible::Button) {
        interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        const bool isPassword = root()->property("isPasswordInput").toBool();
        QCOMPARE(root()->property("isPasswordVisible").toBool(), isPassword);
        QCOMPARE(root()->property("text").toString().isEmpty(), !isPassword);
    }
}

LUMAKIT_TEST_MAIN(tst_LkText)
#include "tst_lk_text.moc"
