#include <ComponentTest.h>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QProcess>
#include <QStandardItemModel>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowHeight = 32;
constexpr int Insets = 2 * 5;
constexpr int ArrowSize = 8;

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

// The first item, however deep, that has the property.
QQuickItem *itemWith(QQuickItem *parent, const char *property)
{
    if (!parent || parent->metaObject()->indexOfProperty(property) >= 0)
        return parent;
    for (QQuickItem *child : parent->childItems()) {
        if (QQuickItem *found = itemWith(child, property))
            return found;
    }
    return nullptr;
}

const QByteArray Entries = "['First', { isSeparator: true }, { text: 'Off', enabled: false }, { text: 'Middle' }, "
                           "{ text: 'Map' }, { text: 'Last' }]";

} // namespace

class tst_LkMenus : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsOfAModel_data();
    void rowsOfAModel();
    void rowsOfAnItemModel();
    void height_data();
    void height();
    void widthFollowsTheEntries_data();
    void widthFollowsTheEntries();
    void standsClearOfTheArrow_data();
    void standsClearOfTheArrow();
    void keys_data();
    void keys();
    void keysOfClosedEnds_data();
    void keysOfClosedEnds();
    void escapeIsLeftToThePopup();
    void selectsByMouse_data();
    void selectsByMouse();
    void selectsByKey_data();
    void selectsByKey();
    void modelDecidesWhatIsChecked();
    void scrollsToTheCurrentEntry();
    void entriesStandClearOfTheScrollBar_data();
    void entriesStandClearOfTheScrollBar();
    void colors();
    void menuIsAccessible();

    void itemEmits_data();
    void itemEmits();
    void separatorColor();
    void wholePixelsAtAFractionOfARatio();

    void contextMenuTypeAhead_data();
    void contextMenuTypeAhead();
    void contextMenuSubmenu();
    void contextMenuItemShowsItsKeys_data();
    void contextMenuItemShowsItsKeys();
    void contextMenuItemMirrors();

private:
    QQuickItem *showMenu(const QByteArray &properties)
    {
        show("Item { LKMenu { objectName: 'menu'; " + properties + " } }");
        return find(u"menu"_s);
    }

    QQuickItem *list() const { return itemOf(find(u"menu"_s), "listView"); }

    QQuickItem *row(int index) const
    {
        QQuickItem *row = nullptr;
        QMetaObject::invokeMethod(list(), "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row), index);
        return itemWith(row, "text");
    }

    QString currentText() const
    {
        const QQuickItem *entry = row(list()->property("currentIndex").toInt());
        return entry ? entry->property("text").toString() : QString();
    }
};

void tst_LkMenus::rowsOfAModel_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("none") << QByteArray("null") << QStringList();
    QTest::newRow("empty") << QByteArray("[]") << QStringList();
    QTest::newRow("texts") << QByteArray("['One', 'Two']") << QStringList{u"One"_s, u"Two"_s};
    QTest::newRow("objects") << QByteArray("[{ text: 'One' }, { text: 'Two', iconName: 'list' }]")
                             << QStringList{u"One"_s, u"Two"_s};
    QTest::newRow("markup") << QByteArray("['<b>One</b>']") << QStringList{u"<b>One</b>"_s};
    QTest::newRow("list model") << QByteArray("ListModel { ListElement { text: 'One' } ListElement { text: 'Two' } }")
                                << QStringList{u"One"_s, u"Two"_s};
}

void tst_LkMenus::rowsOfAModel()
{
    QFETCH(const QByteArray, model);
    QFETCH(const QStringList, texts);
    auto *menu = showMenu("model: " + model);
    QVERIFY(menu);
    QCOMPARE(menu->property("modelCount").toInt(), texts.size());
    for (int i = 0; i < texts.size(); ++i) {
        QTRY_VERIFY(row(i));
        QCOMPARE(row(i)->property("text").toString(), texts[i]);
        auto *label = itemOf(row(i), "contentItem");
        QCOMPARE(label->property("textFormat").toInt(), int(Qt::PlainText));
    }
}

void tst_LkMenus::rowsOfAnItemModel()
{
    QStandardItemModel model;
    model.setItemRoleNames({{Qt::DisplayRole, "text"}, {Qt::UserRole + 1, "enabled"}});
    for (const QString &text : {u"One"_s, u"Two"_s}) {
        auto *item = new QStandardItem(text);
        item->setData(text == "One"_L1, Qt::UserRole + 1);
        model.appendRow(item);
    }
    auto *menu = showMenu({});
    QVERIFY(menu);
    menu->setProperty("model", QVariant::fromValue<QObject *>(&model));
    QTRY_COMPARE(menu->property("modelCount").toInt(), 2);
    QTRY_VERIFY(row(1));
    QVERIFY(row(0)->isEnabled());
    QVERIFY(!row(1)->isEnabled());
    model.item(1)->setText(u"Three"_s);
    QCOMPARE(row(1)->property("text").toString(), u"Three"_s);
    model.removeRow(0);
    QCOMPARE(menu->property("modelCount").toInt(), 1);
    menu->setProperty("model", QVariant());
    QCOMPARE(menu->property("modelCount").toInt(), 0);
}

void tst_LkMenus::height_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("fewer rows than the maximum") << QByteArray("model: ['A', 'B', 'C']") << 3 << false;
    QTest::newRow("as many") << QByteArray("model: ['A', 'B', 'C']; maxListItemSize: 3") << 3 << false;
    QTest::newRow("more") << QByteArray("model: ['A', 'B', 'C']; maxListItemSize: 2") << 2 << true;
    QTest::newRow("more than eight") << QByteArray("model: [...'ABCDEFGHI']") << 8 << true;
}

void tst_LkMenus::height()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const int, rows);
    QFETCH(const bool, scrolls);
    auto *menu = showMenu(properties);
    QVERIFY(menu);
    QTRY_COMPARE(menu->height(), Insets + rows * RowHeight);
    QTRY_COMPARE(list()->property("interactive").toBool(), scrolls);
}

void tst_LkMenus::widthFollowsTheEntries_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<bool>("elided");
    QTest::newRow("the minimum") << QByteArray("minimumWidth: 300; model: ['A']") << false;
    QTest::newRow("a long entry") << QByteArray("model: ['A', 'Benachrichtigungseinstellungen']") << false;
    QTest::newRow("the maximum") << QByteArray("maximumWidth: 160; model: ['Benachrichtigungseinstellungen anzeigen', "
                                               "'A']")
                                 << true;
}

void tst_LkMenus::widthFollowsTheEntries()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const bool, elided);
    auto *menu = showMenu(properties);
    QVERIFY(menu);
    const double minimum = menu->property("minimumWidth").toDouble();
    QTRY_COMPARE_GE(menu->width(), minimum + Insets);
    QTRY_VERIFY(row(0));
    const auto isElided = [this] {
        for (int i = 0; i < 2; ++i) {
            if (row(i) && itemOf(row(i), "contentItem")->property("truncated").toBool())
                return true;
        }
        return false;
    };
    QTRY_COMPARE(isElided(), elided);
    const double width = menu->width();
    application()->setFontScaleFactor(1.5F);
    QTRY_COMPARE(isElided(), elided);
    QCOMPARE_GE(menu->width(), width);
    application()->setFontScaleFactor(1);
    QTRY_COMPARE(menu->width(), width);
}

void tst_LkMenus::standsClearOfTheArrow_data()
{
    QTest::addColumn<QByteArray>("anchor");
    QTest::addColumn<QRectF>("list"); // in a menu of one row, whose list is 160 wide
    QTest::newRow("none") << QByteArray("None") << QRectF(5, 5, 160, RowHeight);
    QTest::newRow("top") << QByteArray("Top") << QRectF(5, 5 + ArrowSize, 160, RowHeight);
    QTest::newRow("bottom") << QByteArray("Bottom") << QRectF(5, 5, 160, RowHeight);
    QTest::newRow("left") << QByteArray("Left") << QRectF(5 + ArrowSize, 5, 160, RowHeight);
    QTest::newRow("right") << QByteArray("Right") << QRectF(5, 5, 160, RowHeight);
}

void tst_LkMenus::standsClearOfTheArrow()
{
    QFETCH(const QByteArray, anchor);
    QFETCH(const QRectF, list);
    auto *menu = showMenu("model: ['A']; arrowAlignment: WBalloon.TopAlignment; arrowAnchor: WBalloon." + anchor);
    QVERIFY(menu);
    QTRY_COMPARE(QRectF(this->list()->position(), this->list()->size()), list);
    const bool upright = anchor == "Top" || anchor == "Bottom";
    const bool beside = anchor == "Left" || anchor == "Right";
    QCOMPARE(menu->size(),
             QSizeF(160 + Insets + (beside ? ArrowSize : 0), RowHeight + Insets + (upright ? ArrowSize : 0)));
    const auto *background = itemOf(menu, "background");
    QCOMPARE(background->property("arrowAnchor"), menu->property("arrowAnchor"));
    QCOMPARE(background->property("arrowAlignment"), menu->property("arrowAlignment"));
}

void tst_LkMenus::keys_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("current");
    const QByteArray down(1, 'v');
    const QByteArray up(1, '^');
    QTest::newRow("the first one has the focus") << QByteArray() << u"First"_s;
    QTest::newRow("down passes separators and what is disabled") << down << u"Middle"_s;
    QTest::newRow("down twice") << down + down << u"Map"_s;
    QTest::newRow("up goes back") << down + down + up << u"Middle"_s;
    QTest::newRow("up passes too") << down + up << u"First"_s;
    QTest::newRow("up from the first one") << up << u"Last"_s;
    QTest::newRow("down from the last one") << down + down + down + down << u"First"_s;
    QTest::newRow("up after end") << QByteArray("$") + up << u"Map"_s;
    QTest::newRow("end") << QByteArray("$") << u"Last"_s;
    QTest::newRow("home") << QByteArray("$<") << u"First"_s;
    QTest::newRow("page down") << QByteArray("]") << u"Last"_s;
    QTest::newRow("page up") << QByteArray("$[") << u"First"_s;
    QTest::newRow("a letter") << QByteArray("m") << u"Middle"_s;
    QTest::newRow("the letter again") << QByteArray("mm") << u"Map"_s;
    QTest::newRow("the letter once more") << QByteArray("mmm") << u"Middle"_s;
    QTest::newRow("a word") << QByteArray("ma") << u"Map"_s;
    QTest::newRow("letters from the current one on") << QByteArray("$m") << u"Middle"_s;
    QTest::newRow("a letter of what is disabled") << QByteArray("o") << u"First"_s;
    QTest::newRow("a letter of nothing") << QByteArray("x") << u"First"_s;
}

void tst_LkMenus::keys()
{
    QFETCH(const QByteArray, typed);
    QFETCH(const QString, current);
    auto *menu = showMenu("model: " + Entries);
    QVERIFY(menu);
    QSignalSpy selected(menu, SIGNAL(selectItem(int)));
    menu->forceActiveFocus(Qt::TabFocusReason);
    QTRY_COMPARE(currentText(), u"First"_s);
    const QHash<char, Qt::Key> keys = {{'v', Qt::Key_Down}, {'^', Qt::Key_Up},       {'$', Qt::Key_End},
                                       {'<', Qt::Key_Home}, {']', Qt::Key_PageDown}, {'[', Qt::Key_PageUp}};
    for (const char key : typed) {
        if (keys.contains(key))
            press(keys[key]);
        else
            QTest::keyClick(window(), key);
    }
    QCOMPARE(currentText(), current);
    QCOMPARE(selected.count(), 0);
    QTRY_VERIFY(row(list()->property("currentIndex").toInt())->hasActiveFocus());
}

void tst_LkMenus::keysOfClosedEnds_data()
{
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<int>("current");
    QTest::newRow("with the focus") << QList<Qt::Key>{} << 2;
    QTest::newRow("up") << QList<Qt::Key>{Qt::Key_Up} << 4;
    QTest::newRow("up, down") << QList<Qt::Key>{Qt::Key_Up, Qt::Key_Down} << 2;
    QTest::newRow("end") << QList<Qt::Key>{Qt::Key_End} << 4;
    QTest::newRow("end, home") << QList<Qt::Key>{Qt::Key_End, Qt::Key_Home} << 2;
    QTest::newRow("page down") << QList<Qt::Key>{Qt::Key_PageDown} << 4;
    QTest::newRow("page down, page up") << QList<Qt::Key>{Qt::Key_PageDown, Qt::Key_PageUp} << 2;
}

void tst_LkMenus::keysOfClosedEnds()
{
    QFETCH(const QList<Qt::Key>, keys);
    QFETCH(const int, current);
    auto *menu = showMenu("model: [{ isSeparator: true }, { text: 'Off', enabled: false }, 'First', 'Middle', 'Last', "
                          "{ text: 'Off', enabled: false }, { isSeparator: true }]");
    QVERIFY(menu);
    menu->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : keys)
        press(key);
    QTRY_COMPARE(menu->property("currentIndex").toInt(), current);
    QVERIFY(row(current)->hasActiveFocus());
}

void tst_LkMenus::escapeIsLeftToThePopup()
{
    QVERIFY(show("Item { id: popup; objectName: 'popup'; property int escapes: 0; Keys.onEscapePressed: ++escapes; "
                 "LKMenu { objectName: 'menu'; model: ['A'] } }"));
    find(u"menu"_s)->forceActiveFocus();
    press(Qt::Key_Escape);
    QCOMPARE(root()->property("escapes").toInt(), 1);
}

void tst_LkMenus::selectsByMouse_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("selects");
    QTest::newRow("an entry") << 0 << true;
    QTest::newRow("a separator") << 1 << false;
    QTest::newRow("a disabled entry") << 2 << false;
    QTest::newRow("the last entry") << 5 << true;
}

void tst_LkMenus::selectsByMouse()
{
    QFETCH(const int, index);
    QFETCH(const bool, selects);
    auto *menu = showMenu("model: " + Entries);
    QVERIFY(menu);
    QSignalSpy selected(menu, SIGNAL(selectItem(int)));
    QQuickItem *row = nullptr;
    QTRY_VERIFY(QMetaObject::invokeMethod(list(), "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row), index) && row);
    QTRY_COMPARE(list()->height(), list()->property("contentHeight").toDouble());
    click(row);
    QCOMPARE(selected.count(), selects ? 1 : 0);
    if (selects) {
        QCOMPARE(selected[0][0].toInt(), index);
        QCOMPARE(menu->property("currentIndex").toInt(), index);
    }
}

void tst_LkMenus::selectsByKey_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("enter") << int(Qt::Key_Enter);
    QTest::newRow("return") << int(Qt::Key_Return);
}

void tst_LkMenus::selectsByKey()
{
    QFETCH(const int, key);
    auto *menu = showMenu("model: " + Entries);
    QVERIFY(menu);
    QSignalSpy selected(menu, SIGNAL(selectItem(int)));
    menu->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    QTest::keyPress(window(), Qt::Key(key));
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeated(type, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(window(), &repeated);
    }
    QTest::keyRelease(window(), Qt::Key(key));
    QCOMPARE(selected.count(), 1); // a key that is held down chooses once
    QCOMPARE(selected[0][0].toInt(), 3);
}

void tst_LkMenus::modelDecidesWhatIsChecked()
{
    QVERIFY(show("Item { property bool muted: true; LKMenu { objectName: 'menu'; "
                 "model: [{ text: 'Mute', checked: muted }, { text: 'Leave' }] } }"));
    QTRY_VERIFY(row(1));
    QVERIFY(row(0)->property("checked").toBool());
    QVERIFY(!row(1)->property("checkable").toBool());
    QSignalSpy selected(find(u"menu"_s), SIGNAL(selectItem(int)));
    click(row(0));
    QCOMPARE(selected.count(), 1);
    QVERIFY(row(0)->property("checked").toBool());
    root()->setProperty("muted", false);
    QTRY_VERIFY(row(0) && !row(0)->property("checked").toBool());
}

void tst_LkMenus::scrollsToTheCurrentEntry()
{
    auto *menu = showMenu("maxListItemSize: 3; model: [...'ABCDEFGHIJ']");
    QVERIFY(menu);
    menu->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    QTRY_COMPARE(currentText(), u"J"_s);
    QTRY_COMPARE(list()->property("contentY").toDouble(), 7.0 * RowHeight);
    press(Qt::Key_PageUp);
    QTRY_COMPARE(currentText(), u"H"_s);
}

void tst_LkMenus::entriesStandClearOfTheScrollBar_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_LkMenus::entriesStandClearOfTheScrollBar()
{
    QFETCH(const bool, mirrored);
    auto *menu = showMenu("maxListItemSize: 3; model: [...'ABCDEFGHIJ']; property bool rtl; LayoutMirroring.enabled: "
                          "rtl; LayoutMirroring.childrenInherit: true");
    QVERIFY(menu);
    menu->setProperty("rtl", mirrored);
    QTRY_COMPARE(list()->height(), 3.0 * RowHeight);
    const auto *bar = itemWith(list(), "arrowVisible");
    QVERIFY(bar);
    const auto leftOf = [this](const QQuickItem *shown) { return shown->mapToItem(list(), QPointF()).x(); };
    QTRY_COMPARE(leftOf(bar), mirrored ? 0.0 : list()->width() - bar->width());
    QTRY_VERIFY(row(2));
    QCOMPARE(leftOf(row(2)), mirrored ? bar->width() : 0.0);
    QCOMPARE(row(2)->width(), list()->width() - bar->width());
}

void tst_LkMenus::colors()
{
    auto *menu = showMenu("model: ['A']");
    QVERIFY(menu);
    const auto *background = itemOf(menu, "background");
    for (const QString &mode : {u"default"_s, u"dark"_s}) {
        application()->setThemeMode(mode);
        QCOMPARE(background->property("fillColor").value<QColor>(),
                 application()->getColorSet(u"menulistbackground-primary-background"_s).normal);
        QCOMPARE(background->property("lineColor").value<QColor>(),
                 application()->getColorSet(u"menulistbackground-primary-border"_s).normal);
    }
}

void tst_LkMenus::menuIsAccessible()
{
    auto *menu = showMenu("model: [{ text: 'Mute', checked: true }, { text: 'Off', enabled: false }]");
    QVERIFY(menu);
    QCOMPARE(accessible(menu)->role(), QAccessible::PopupMenu);
    QTRY_VERIFY(row(1));
    QCOMPARE(accessible(row(0))->role(), QAccessible::MenuItem);
    QCOMPARE(accessible(row(0))->text(QAccessible::Name), u"Mute"_s);
    QVERIFY(accessible(row(0))->state().checked);
    QVERIFY(accessible(row(1))->state().disabled);
    QSignalSpy selected(menu, SIGNAL(selectItem(int)));
    pressAccessible(row(0));
    QCOMPARE(selected.count(), 1);
}

void tst_LkMenus::itemEmits_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("count");
    QTest::newRow("enabled") << QByteArray() << 1;
    QTest::newRow("disabled") << QByteArray("enabled: false") << 0;
}

void tst_LkMenus::itemEmits()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const int, count);
    QVERIFY(show("Item { LKMenuItem { objectName: 'item'; text: 'Rename'; " + properties + " } }"));
    auto *item = find(u"item"_s);
    QSignalSpy selected(item, SIGNAL(selectItem()));
    click(item);
    QCOMPARE(selected.count(), count);
    item->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QCOMPARE(selected.count(), 2 * count);
    press(Qt::Key_Return);
    QCOMPARE(selected.count(), 3 * count);
}

void tst_LkMenus::separatorColor()
{
    QVERIFY(show("Item { LKMenuSeparator { objectName: 'separator'; width: 100 } }"));
    const auto *line = itemOf(find(u"separator"_s), "contentItem");
    QCOMPARE(line->height(), 1.0);
    QCOMPARE(line->property("color").value<QColor>(), application()->getColorSet(u"separator-primary"_s).normal);
    QCOMPARE(accessible(find(u"separator"_s))->role(), QAccessible::Separator);
}

// In a process of its own, whose screens have the ratio.
void tst_LkMenus::wholePixelsAtAFractionOfARatio()
{
    constexpr double Ratio = 1.25;
    if (qEnvironmentVariable("QT_SCALE_FACTOR") != "1.25"_L1) {
        QProcess scaled;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_SCALE_FACTOR"_s, u"1.25"_s);
        scaled.setProcessEnvironment(environment);
        scaled.setProcessChannelMode(QProcess::MergedChannels);
        scaled.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(QTest::currentTestFunction())});
        QVERIFY(scaled.waitForFinished());
        const QByteArray output = scaled.readAll();
        QVERIFY2(scaled.exitStatus() == QProcess::NormalExit && scaled.exitCode() == 0, output.constData());
        return;
    }
    QVERIFY(
        show("Item { LKMenu { objectName: 'menu'; model: [{ text: 'One' }, { isSeparator: true }, { text: 'Two' }] }"
             " WMenuSeparator { objectName: 'separator'; width: 100 }"
             " LKMenuSeparator { objectName: 'lkSeparator'; width: 100 }"
             " WMenu { objectName: 'popup'; WMenuItem { text: 'One' } } }"));
    QCOMPARE(window()->effectiveDevicePixelRatio(), Ratio);
    const auto *menu = find(u"menu"_s);
    QTRY_COMPARE_GT(menu->height(), 64.0);
    for (const double length : {menu->width(), menu->height(), menu->width() * Ratio, menu->height() * Ratio})
        QCOMPARE(length, std::round(length));
    QCOMPARE(menu->height(), 84.0);
    for (const QString &name : {u"separator"_s, u"lkSeparator"_s})
        QCOMPARE(itemOf(find(name), "contentItem")->height() * Ratio, 1.0);
    const double top = list()->mapToItem(menu, QPointF()).y() * Ratio;
    QCOMPARE(top, std::round(top));
    auto *popup = find<QObject>(u"popup"_s);
    QMetaObject::invokeMethod(popup, "open");
    const double padding = popup->property("padding").toDouble() * Ratio;
    QCOMPARE(padding, std::round(padding));
}

namespace {

constexpr auto ContextMenu = R"(
    Item {
        LKContextMenu {
            objectName: 'menu'
            LKContextMenuItem { text: 'Copy' }
            LKMenuSeparator {}
            LKContextMenuItem { text: 'Cut'; enabled: false }
            LKContextMenuItem { text: 'Paste' }
            LKContextMenuItem { text: 'Close' }
            LKContextMenu {
                objectName: 'submenu'
                title: 'Move to'
                LKContextMenuItem { text: 'Archive' }
            }
        }
    })";

} // namespace

void tst_LkMenus::contextMenuTypeAhead_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("index");
    QTest::newRow("a letter") << QByteArray("p") << 3;
    QTest::newRow("a capital letter") << QByteArray("P") << 3;
    QTest::newRow("the first of several") << QByteArray("c") << 0;
    QTest::newRow("the next of several") << QByteArray("cc") << 4;
    QTest::newRow("round to the first") << QByteArray("ccc") << 0;
    QTest::newRow("a word") << QByteArray("cl") << 4;
    QTest::newRow("a submenu") << QByteArray("m") << 5;
    QTest::newRow("nothing") << QByteArray("x") << -1;
}

void tst_LkMenus::contextMenuTypeAhead()
{
    QFETCH(const QByteArray, typed);
    QFETCH(const int, index);
    QVERIFY(show(ContextMenu));
    auto *menu = find<QObject>(u"menu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    QTRY_VERIFY(menu->property("opened").toBool());
    for (const char letter : typed)
        QTest::keyClick(window(), letter);
    QCOMPARE(menu->property("currentIndex").toInt(), index);
    QVERIFY(menu->property("opened").toBool());
    QVERIFY(!find<QObject>(u"submenu"_s)->property("visible").toBool());
}

void tst_LkMenus::contextMenuSubmenu()
{
    QVERIFY(show(ContextMenu));
    auto *menu = find<QObject>(u"menu"_s);
    auto *submenu = find<QObject>(u"submenu"_s);
    QVERIFY(QMetaObject::invokeMethod(menu, "open"));
    QTRY_VERIFY(menu->property("opened").toBool());
    QTest::keyClick(window(), 'm');
    press(Qt::Key_Right);
    QTRY_VERIFY(submenu->property("opened").toBool());
    QTest::keyClick(window(), 'a');
    QCOMPARE(submenu->property("currentIndex").toInt(), 0);
    press(Qt::Key_Left);
    QTRY_VERIFY(!submenu->property("visible").toBool());
    QVERIFY(menu->property("opened").toBool());
    press(Qt::Key_Escape);
    QTRY_VERIFY(!menu->property("visible").toBool());
}

void tst_LkMenus::contextMenuItemShowsItsKeys_data()
{
    QTest::addColumn<QString>("keys");
    QTest::newRow("none") << QString();
    QTest::newRow("keys") << u"Ctrl+C"_s;
}

void tst_LkMenus::contextMenuItemShowsItsKeys()
{
    QFETCH(const QString, keys);
    QVERIFY(show("Item { LKContextMenuItem { objectName: 'item'; text: 'Copy' } }"));
    auto *item = find(u"item"_s);
    const double width = item->implicitWidth();
    item->setProperty("shortcutText", keys);
    QCOMPARE(item->implicitWidth() > width, !keys.isEmpty());
    QCOMPARE(accessible(item)->text(QAccessible::Name), u"Copy"_s);
    QCOMPARE(accessible(item)->text(QAccessible::Description), keys);
    QCOMPARE(itemWith(item, "truncated")->property("truncated").toBool(), false);
    item->setWidth(item->implicitWidth() - 8);
    QTRY_VERIFY(itemWith(item, "truncated")->property("truncated").toBool());
}

void tst_LkMenus::contextMenuItemMirrors()
{
    QVERIFY(
        show("Item { LKContextMenuItem { objectName: 'item'; width: 300; text: 'Copy'; shortcutText: 'Ctrl+C' } }"));
    auto *item = find(u"item"_s);
    QList<QQuickItem *> texts = itemOf(item, "contentItem")->childItems();
    QCOMPARE(texts.size(), 2);
    QCOMPARE_LT(texts[0]->mapToItem(item, QPointF()).x(), texts[1]->mapToItem(item, QPointF()).x());
    QVERIFY(show("Item { LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true; LKContextMenuItem { "
                 "objectName: 'item'; width: 300; text: 'Copy'; shortcutText: 'Ctrl+C' } }"));
    item = find(u"item"_s);
    texts = itemOf(item, "contentItem")->childItems();
    QCOMPARE_GT(texts[0]->mapToItem(item, QPointF()).x(), texts[1]->mapToItem(item, QPointF()).x());
}

LUMAKIT_TEST_MAIN(tst_LkMenus)
#include "tst_lk_menus.moc"
