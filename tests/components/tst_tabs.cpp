#include <ComponentTest.h>

#include <QAccessible>
#include <QQmlProperty>

using namespace Qt::StringLiterals;

// Tab bars: one of tabs in a row, and one of pills that puts what does not fit into a list.
class tst_Tabs : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void keysChooseATab_data();
    void keysChooseATab();
    void disabledBarIgnoresKeys();
    void tabStopsAtTheCurrentTab();
    void clickChoosesATab();
    void ringIsForTheKeyboard();
    void currentTabIsUnderlined();
    void tabTextColours_data();
    void tabTextColours();
    void dTabBackgroundIsFilled_data();
    void dTabBackgroundIsFilled();
    void barBackground_data();
    void barBackground();
    void tabsAreAsWideAsTheirTexts();
    void currentTabIsScrolledIntoView_data();
    void currentTabIsScrolledIntoView();
    void wheelScrollsTabs();
    void tabAccessibility_data();
    void tabAccessibility();

    void pillsThatDoNotFitAreHidden_data();
    void pillsThatDoNotFitAreHidden();
    void pillIsNoWiderThanItsBar_data();
    void pillIsNoWiderThanItsBar();
    void pillsOfNoModel_data();
    void pillsOfNoModel();
    void pillsFollowTheWidth();
    void pillsFollowTheFont();
    void pillSizes();
    void clickOnAPill();
    void pillKeysMoveTheFocus_data();
    void pillKeysMoveTheFocus();
    void pillKeysChoose_data();
    void pillKeysChoose();
    void escapeOnAPill();
    void overflowListIsMadeOnDemand();
    void overflowListChooses_data();
    void overflowListChooses();
    void overflowListIsClosedWithoutAChoice_data();
    void overflowListIsClosedWithoutAChoice();
    void moreButtonClosesTheList();
    void pillColours();
    void pillsMirror();
    void pillAccessibility();

private:
    QQuickItem *tab(int index) const { return itemAt(root(), index); }
    QQuickItem *pill(int index) const;
    QStringList pillTexts() const;
    QQuickItem *moreButton() const { return root()->property("overflowButton").value<QQuickItem *>(); }
    QObject *overflowList() const { return root()->property("overflowList").value<QObject *>(); }
    QColor colour(const char *set, const char *state) const
    {
        const WColorSet colorSet = application()->getColorSet(QString::fromLatin1(set));
        return colorSet.getColor(QString::fromLatin1(state));
    }
    static QQuickItem *itemAt(QQuickItem *bar, int index);
    static bool hasRing(const QObject *owner);
};

QQuickItem *tst_Tabs::itemAt(QQuickItem *bar, int index)
{
    QQuickItem *item = nullptr;
    QMetaObject::invokeMethod(bar, "itemAt", Q_RETURN_ARG(QQuickItem *, item), Q_ARG(int, index));
    return item;
}

QQuickItem *tst_Tabs::pill(int index) const
{
    auto *view = root()->property("tabView").value<QQuickItem *>();
    return view->childItems().value(index);
}

// What is in sight, from the start; without the "more" button.
QStringList tst_Tabs::pillTexts() const
{
    QStringList texts;
    for (const QQuickItem *item : root()->property("tabView").value<QQuickItem *>()->childItems()) {
        if (item->inherits("QQuickButton"))
            texts << item->property("text").toString();
    }
    return texts;
}

bool tst_Tabs::hasRing(const QObject *owner)
{
    for (const QObject *child : owner->children()) {
        if (child->inherits("FocusRing"))
            return child->property("active").toBool();
    }
    return false;
}

const QByteArray Tabs = "WTabButton { text: 'One' } WTabButton { text: 'Two' }"
                        "WTabButton { text: 'Off'; enabled: false } WTabButton { text: 'Four' }";

void tst_Tabs::keysChooseATab_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("index");
    QTest::newRow("right") << 0 << int(Qt::Key_Right) << false << 1;
    QTest::newRow("left") << 1 << int(Qt::Key_Left) << false << 0;
    QTest::newRow("right over a disabled one") << 1 << int(Qt::Key_Right) << false << 3;
    QTest::newRow("left over a disabled one") << 3 << int(Qt::Key_Left) << false << 1;
    QTest::newRow("right at the end") << 3 << int(Qt::Key_Right) << false << 3;
    QTest::newRow("left at the start") << 0 << int(Qt::Key_Left) << false << 0;
    QTest::newRow("home") << 3 << int(Qt::Key_Home) << false << 0;
    QTest::newRow("end") << 0 << int(Qt::Key_End) << false << 3;
    QTest::newRow("right, mirrored") << 1 << int(Qt::Key_Right) << true << 0;
    QTest::newRow("left, mirrored") << 0 << int(Qt::Key_Left) << true << 1;
    QTest::newRow("home, mirrored") << 3 << int(Qt::Key_Home) << true << 0;
    QTest::newRow("another key") << 1 << int(Qt::Key_Down) << false << 1;
}

void tst_Tabs::keysChooseATab()
{
    QFETCH(const int, start);
    QFETCH(const int, key);
    QFETCH(const bool, mirrored);
    QFETCH(const int, index);
    QVERIFY(show("WTabBar { LayoutMirroring.enabled: " + QByteArray(mirrored ? "true;" : "false;") + Tabs + "}"));
    root()->setProperty("currentIndex", start);
    tab(start)->forceActiveFocus(Qt::TabFocusReason);
    QSignalSpy changed(root(), SIGNAL(currentIndexChanged()));
    press(Qt::Key(key));
    QCOMPARE(root()->property("currentIndex").toInt(), index);
    QCOMPARE(changed.count(), index == start ? 0 : 1);
    QVERIFY(tab(index)->hasActiveFocus());
}

void tst_Tabs::disabledBarIgnoresKeys()
{
    QVERIFY(show("WTabBar { enabled: false;" + Tabs + "}"));
    tab(0)->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    click(tab(1));
    QCOMPARE(root()->property("currentIndex").toInt(), 0);
}

void tst_Tabs::tabStopsAtTheCurrentTab()
{
    QVERIFY(show("Column { WButton { objectName: 'before' }"
                 "WTabBar { objectName: 'bar'; currentIndex: 1;"
                 + Tabs + "} WButton { objectName: 'after' } }"));
    auto *bar = find(u"bar"_s);
    find(u"before"_s)->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Tab);
    QVERIFY(itemAt(bar, 1)->hasActiveFocus());
    QVERIFY(hasRing(itemAt(bar, 1)));
    press(Qt::Key_Tab);
    QVERIFY(find(u"after"_s)->hasActiveFocus());
    press(Qt::Key_Backtab);
    QVERIFY(itemAt(bar, 1)->hasActiveFocus());
    press(Qt::Key_Backtab);
    QVERIFY(find(u"before"_s)->hasActiveFocus());
}

void tst_Tabs::clickChoosesATab()
{
    QVERIFY(show("WTabBar {" + Tabs + "}"));
    click(tab(3));
    QCOMPARE(root()->property("currentIndex").toInt(), 3);
    QVERIFY(tab(3)->hasActiveFocus());
    QVERIFY(!hasRing(tab(3)));
    click(tab(2));
    QCOMPARE(root()->property("currentIndex").toInt(), 3);
}

void tst_Tabs::ringIsForTheKeyboard()
{
    QVERIFY(show("WTabBar {" + Tabs + "}"));
    click(tab(0));
    QVERIFY(!hasRing(tab(0)));
    press(Qt::Key_Right);
    QVERIFY(!hasRing(tab(0)));
    QVERIFY(hasRing(tab(1)));
    press(Qt::Key_End);
    QVERIFY(!hasRing(tab(1)));
    QVERIFY(hasRing(tab(3)));
}

void tst_Tabs::currentTabIsUnderlined()
{
    QVERIFY(show("WTabBar {" + Tabs + "}"));
    root()->setProperty("currentIndex", 1);
    for (int i = 0; i < 4; ++i) {
        auto *line = tab(i)->property("underlineItem").value<QQuickItem *>();
        QVERIFY(line);
        QCOMPARE(line->isVisible(), i == 1);
        QCOMPARE(line->height(), 2.0);
        QCOMPARE(line->mapToItem(tab(i), QPointF(0, line->height())).y(), tab(i)->height());
        QCOMPARE(line->property("color").value<QColor>(), colour("tab-active-text", i == 2 ? "disabled" : "normal"));
    }
}

void tst_Tabs::tabTextColours_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("WTabButton") << QByteArray("WTabButton");
    QTest::newRow("DTabButton") << QByteArray("DTabButton");
}

void tst_Tabs::tabTextColours()
{
    QFETCH(const QByteArray, type);
    QVERIFY(show("Item { " + type + " { objectName: 'tab'; text: 'One' } }"));
    auto *button = find(u"tab"_s);
    auto *text = button->property("textItem").value<QQuickItem *>();
    QVERIFY(text);
    QCOMPARE(text->property("text").toString(), u"One"_s);
    const auto color = [text] { return text->property("color").value<QColor>(); };
    moveMouseAway();
    QCOMPARE(color(), colour("tab-inactive-text", "normal"));
    moveMouseTo(button);
    QCOMPARE(color(), colour("tab-inactive-text", "hovered"));
    QTest::mousePress(window(), Qt::LeftButton, {}, QPoint(8, 8));
    QCOMPARE(color(), colour("tab-inactive-text", "pressed"));
    QTest::mouseRelease(window(), Qt::LeftButton, {}, QPoint(8, 8));
    moveMouseAway();
    QVERIFY(button->property("checked").toBool());
    QCOMPARE(color(), colour("tab-inactive-text", "checked"));
    application()->setThemeMode(u"dark"_s);
    QCOMPARE(color(), colour("tab-inactive-text", "checked"));
    button->setEnabled(false);
    QCOMPARE(color(), colour("tab-inactive-text", "disabled"));
}

void tst_Tabs::dTabBackgroundIsFilled_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("isFilled");
    QTest::newRow("WTabButton") << QByteArray("WTabButton") << false;
    QTest::newRow("DTabButton") << QByteArray("DTabButton") << true;
}

void tst_Tabs::dTabBackgroundIsFilled()
{
    QFETCH(const QByteArray, type);
    QFETCH(const bool, isFilled);
    QVERIFY(show("Item { " + type + " { objectName: 'tab'; text: 'One'; checked: true } }"));
    auto *button = find(u"tab"_s);
    auto *background = button->property("backgroundItem").value<QQuickItem *>();
    QVERIFY(background);
    moveMouseAway();
    QCOMPARE(background->property("color").value<QColor>(),
             colour("tab-inactive-background", isFilled ? "checked" : "normal"));
    moveMouseTo(button);
    QCOMPARE(background->property("color").value<QColor>(), colour("tab-inactive-background", "hovered"));
}

void tst_Tabs::barBackground_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("WTabBar") << QByteArray("WTabBar");
    QTest::newRow("DTabBar") << QByteArray("DTabBar");
}

void tst_Tabs::barBackground()
{
    QFETCH(const QByteArray, type);
    QVERIFY(show(type
                 + " { backgroundColorSetName: 'panel-tertiary-background'; radius: 6; borderWidth: 2;"
                   "borderColorSetName: 'separator-primary' }"));
    auto *background = root()->property("background").value<QQuickItem *>();
    QCOMPARE(background->property("color").value<QColor>(), colour("panel-tertiary-background", "normal"));
    QCOMPARE(background->property("radius").toReal(), 6.0);
    QCOMPARE(QQmlProperty::read(background, u"border.width"_s).toInt(), 2);
    QCOMPARE(QQmlProperty::read(background, u"border.color"_s).value<QColor>(), colour("separator-primary", "normal"));
    root()->setProperty("borderColorSetName", QString());
    QCOMPARE(QQmlProperty::read(background, u"border.width"_s).toInt(), 0);
    root()->setProperty("backgroundColorSetName", QString());
    QCOMPARE(background->property("color").value<QColor>().alpha(), 0);
}

void tst_Tabs::tabsAreAsWideAsTheirTexts()
{
    QVERIFY(show("WTabBar { WTabButton { text: 'I' } WTabButton { text: 'Benachrichtigungen' } }"));
    for (const qreal scale : {1.0, 1.5}) {
        application()->setFontScaleFactor(float(scale));
        for (int i = 0; i < 2; ++i) {
            auto *text = tab(i)->property("textItem").value<QQuickItem *>();
            QVERIFY(!text->property("truncated").toBool());
            QVERIFY(text->implicitWidth() <= text->width());
            QVERIFY(text->width() < text->implicitWidth() + 1);
            QVERIFY(text->implicitHeight() <= text->height());
        }
    }
}

void tst_Tabs::currentTabIsScrolledIntoView_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("mirrored") << true;
}

void tst_Tabs::currentTabIsScrolledIntoView()
{
    QFETCH(const bool, mirrored);
    QVERIFY(show("WTabBar { width: 160; currentIndex: 4; LayoutMirroring.enabled: "
                 + QByteArray(mirrored ? "true;" : "false;")
                 + "Repeater { model: 5; WTabButton { text: 'Whiteboard' } } }"));
    const auto isInSight = [this](int index) {
        const QRectF place = tab(index)->mapRectToItem(root(), tab(index)->boundingRect());
        return root()->boundingRect().contains(place);
    };
    QTRY_VERIFY(isInSight(4));
    QVERIFY(!isInSight(0));
    tab(4)->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    QTRY_VERIFY(isInSight(0));
    QVERIFY(tab(0)->hasActiveFocus());
    QVERIFY(!isInSight(4));
}

void tst_Tabs::wheelScrollsTabs()
{
    QVERIFY(show("WTabBar { width: 160; Repeater { model: 5; WTabButton { text: 'Whiteboard' } } }"));
    auto *view = root()->property("contentItem").value<QQuickItem *>();
    QCOMPARE(view->property("contentX").toReal(), 0.0);
    QTest::wheelEvent(window(), QPoint(80, 20), {0, -120});
    QVERIFY(view->property("contentX").toReal() > 0);
    QCOMPARE(root()->property("currentIndex").toInt(), 0);
    QTest::wheelEvent(window(), QPoint(80, 20), {0, 1200});
    QCOMPARE(view->property("contentX").toReal(), 0.0);
}

void tst_Tabs::tabAccessibility_data()
{
    QTest::addColumn<QByteArray>("bar");
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("W") << QByteArray("WTabBar") << QByteArray("WTabButton");
    QTest::newRow("D") << QByteArray("DTabBar") << QByteArray("DTabButton");
}

void tst_Tabs::tabAccessibility()
{
    QFETCH(const QByteArray, bar);
    QFETCH(const QByteArray, button);
    QVERIFY(show(bar + " { " + button + " { text: 'One' } " + button + " { tooltip: 'Second' } }"));
    QAccessible::setActive(true);
    QCOMPARE(QAccessible::queryAccessibleInterface(root())->role(), QAccessible::PageTabList);
    QAccessibleInterface *first = QAccessible::queryAccessibleInterface(tab(0));
    QAccessibleInterface *second = QAccessible::queryAccessibleInterface(tab(1));
    QCOMPARE(first->role(), QAccessible::PageTab);
    QCOMPARE(first->text(QAccessible::Name), u"One"_s);
    QVERIFY(first->state().selectable);
    QVERIFY(first->state().selected);
    QCOMPARE(second->text(QAccessible::Name), u"Second"_s);
    QVERIFY(!second->state().selected);
    QSignalSpy clicked(tab(1), SIGNAL(clicked()));
    second->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(root()->property("currentIndex").toInt(), 1);
    QVERIFY(second->state().selected);
    QVERIFY(!first->state().selected);
}

const QByteArray Pills = "model: ['Aaaaaaaa', 'Bbbbbbbb', 'Cccccccc', 'Dddddddd'];";

void tst_Tabs::pillsThatDoNotFitAreHidden_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("currentIndex");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<bool>("hasMore");
    const QStringList all = {u"Aaaaaaaa"_s, u"Bbbbbbbb"_s, u"Cccccccc"_s, u"Dddddddd"_s};
    // Tabs of 80 pixels with 4 between them, 4 around all, a "more" button of 32.
    QTest::newRow("all fit") << 340 << 0 << all << false;
    QTest::newRow("one pixel short") << 339 << 0 << all.first(3) << true;
    QTest::newRow("three and the button") << 292 << 0 << all.first(3) << true;
    QTest::newRow("two and the button") << 291 << 0 << all.first(2) << true;
    QTest::newRow("two, the last is current") << 291 << 3 << QStringList{all[0], all[3]} << true;
    QTest::newRow("one") << 130 << 2 << QStringList{all[2]} << true;
    QTest::newRow("one without a current") << 130 << -1 << QStringList{all[0]} << true;
    QTest::newRow("no room for a tab") << 10 << -1 << QStringList() << true;
    QTest::newRow("no room for the current one") << 10 << 1 << QStringList{all[1]} << true;
}

void tst_Tabs::pillsThatDoNotFitAreHidden()
{
    QFETCH(const int, width);
    QFETCH(const int, currentIndex);
    QFETCH(const QStringList, texts);
    QFETCH(const bool, hasMore);
    QVERIFY(show("Item { width: 400; height: 100; WPillTabBar { objectName: 'bar'; tabWidth: 80; width: "
                 + QByteArray::number(width) + "; currentIndex: " + QByteArray::number(currentIndex) + ";" + Pills
                 + "} }"));
    auto *bar = find(u"bar"_s);
    QStringList shown;
    for (const QQuickItem *item : bar->property("tabView").value<QQuickItem *>()->childItems()) {
        if (item->inherits("QQuickButton"))
            shown << item->property("text").toString();
    }
    QCOMPARE(shown, texts);
    auto *more = bar->property("overflowButton").value<QQuickItem *>();
    QCOMPARE(more != nullptr, hasMore);
    if (more && width > 100)
        QVERIFY(more->mapRectToItem(bar, more->boundingRect()).right() <= width - 4);
}

void tst_Tabs::pillIsNoWiderThanItsBar_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<bool>("hasMore");
    QTest::newRow("one tab") << QByteArray("['A tab whose text is longer than the bar']") << false;
    QTest::newRow("the current of several") << QByteArray("['A tab whose text is longer than the bar', 'B']") << true;
}

void tst_Tabs::pillIsNoWiderThanItsBar()
{
    QFETCH(const QByteArray, model);
    QFETCH(const bool, hasMore);
    QVERIFY(
        show("Item { width: 400; height: 100; WPillTabBar { objectName: 'bar'; width: 120; model: " + model + "} }"));
    auto *bar = find(u"bar"_s);
    QVERIFY(bar->implicitWidth() > 200);
    auto *row = bar->property("tabView").value<QQuickItem *>();
    QCOMPARE(row->childItems()[0]->width(), hasMore ? 120.0 - 2 * 4 - 32 - 4 : 120.0 - 2 * 4);
    auto *more = bar->property("overflowButton").value<QQuickItem *>();
    QCOMPARE(more != nullptr, hasMore);
    if (more)
        QCOMPARE(more->mapRectToItem(bar, more->boundingRect()).right(), 116.0);
    bar->setWidth(400);
    QVERIFY(row->childItems()[0]->width() > 200);
}

void tst_Tabs::pillsOfNoModel_data()
{
    QTest::addColumn<QVariant>("model");
    QTest::newRow("undefined") << QVariant();
    QTest::newRow("null") << QVariant::fromValue<QObject *>(nullptr);
    QTest::newRow("empty") << QVariant(QVariantList());
}

void tst_Tabs::pillsOfNoModel()
{
    QFETCH(const QVariant, model);
    QVERIFY(show("WPillTabBar {" + Pills + "}"));
    QCOMPARE(pillTexts().size(), 4);
    root()->setProperty("model", model);
    QCOMPARE(pillTexts(), QStringList());
    QCOMPARE(root()->property("count").toInt(), 0);
    QVERIFY(!moreButton());
    root()->setProperty("model", QVariantList{u"One"_s});
    QCOMPARE(pillTexts(), QStringList{u"One"_s});
}

void tst_Tabs::pillsFollowTheWidth()
{
    QVERIFY(show("WPillTabBar { tabWidth: 80; width: 340;" + Pills + "}"));
    QPointer<QQuickItem> first = pill(0);
    QCOMPARE(pillTexts().size(), 4);
    QVERIFY(!moreButton());
    root()->setWidth(210);
    QCOMPARE(pillTexts().size(), 2);
    QVERIFY(moreButton());
    root()->setWidth(340);
    QCOMPARE(pillTexts().size(), 4);
    QVERIFY(!moreButton());
    QCOMPARE(pill(0), first.data());
}

void tst_Tabs::pillsFollowTheFont()
{
    QVERIFY(show("WPillTabBar {" + Pills + "}"));
    const qreal before = root()->implicitWidth();
    const qreal heightBefore = root()->implicitHeight();
    application()->setFontScaleFactor(1.5F);
    QVERIFY(root()->implicitWidth() > before + 50);
    QVERIFY(root()->implicitHeight() >= heightBefore);
    QCOMPARE(pillTexts().size(), 4);
    for (int i = 0; i < 4; ++i) {
        const QList<QQuickItem *> texts = pill(i)->findChildren<QQuickItem *>();
        for (const QQuickItem *text : texts) {
            if (text->inherits("QQuickText"))
                QVERIFY(!text->property("truncated").toBool());
        }
    }
}

void tst_Tabs::pillSizes()
{
    QVERIFY(show("WPillTabBar { tabHeight: 28; tabPadding: 20; containerPadding: 6; model: ['Tab'] }"));
    QCOMPARE(root()->implicitHeight(), 40.0);
    QCOMPARE(pill(0)->height(), 28.0);
    const qreal narrow = pill(0)->width();
    QCOMPARE(root()->implicitWidth(), narrow + 12);
    QCOMPARE(pill(0)->mapToItem(root(), QPointF()), QPointF(6, 6));
    root()->setProperty("tabPadding", 30);
    QCOMPARE(pill(0)->width(), narrow + 20);
    root()->setProperty("tabWidth", 100);
    QCOMPARE(pill(0)->width(), 100.0);
    root()->setProperty("tabHeight", 40);
    QCOMPARE(pill(0)->height(), 40.0);
}

void tst_Tabs::clickOnAPill()
{
    QVERIFY(show("WPillTabBar { model: ['A', { text: 'B', enabled: false }, 'C'] }"));
    QSignalSpy clicked(root(), SIGNAL(clicked(int)));
    click(pill(2));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked[0][0].toInt(), 2);
    QCOMPARE(root()->property("currentIndex").toInt(), 2);
    click(pill(2));
    QCOMPARE(clicked.count(), 2);
    click(pill(1));
    QCOMPARE(clicked.count(), 2);
    QCOMPARE(root()->property("currentIndex").toInt(), 2);
}

void tst_Tabs::pillKeysMoveTheFocus_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<QList<int>>("places"); // -1 is the "more" button
    QTest::newRow("right") << int(Qt::Key_Right) << false << QList<int>{1, 2, -1, -1};
    QTest::newRow("left") << int(Qt::Key_Left) << false << QList<int>{0, 0};
    QTest::newRow("end, left") << int(Qt::Key_End) << false << QList<int>{-1, -1};
    QTest::newRow("home") << int(Qt::Key_Home) << false << QList<int>{0};
    QTest::newRow("left, mirrored") << int(Qt::Key_Left) << true << QList<int>{1, 2, -1};
    QTest::newRow("right, mirrored") << int(Qt::Key_Right) << true << QList<int>{0};
}

void tst_Tabs::pillKeysMoveTheFocus()
{
    QFETCH(const int, key);
    QFETCH(const bool, mirrored);
    QFETCH(const QList<int>, places);
    QVERIFY(show("WPillTabBar { tabWidth: 80; width: 300; LayoutMirroring.enabled: "
                 + QByteArray(mirrored ? "true;" : "false;") + Pills + "}"));
    QSignalSpy clicked(root(), SIGNAL(clicked(int)));
    press(Qt::Key_Tab);
    QVERIFY(pill(0)->hasActiveFocus());
    for (const int place : places) {
        press(Qt::Key(key));
        QQuickItem *expected = place < 0 ? moreButton() : pill(place);
        QVERIFY(expected->hasActiveFocus());
        QVERIFY(hasRing(expected));
    }
    QCOMPARE(clicked.count(), 0);
}

void tst_Tabs::pillKeysChoose_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("enter") << int(Qt::Key_Enter);
    QTest::newRow("return") << int(Qt::Key_Return);
}

void tst_Tabs::pillKeysChoose()
{
    QFETCH(const int, key);
    QVERIFY(show("WPillTabBar {" + Pills + "}"));
    QSignalSpy clicked(root(), SIGNAL(clicked(int)));
    press(Qt::Key_Tab);
    press(Qt::Key_Right);
    press(Qt::Key(key));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked[0][0].toInt(), 1);
    QCOMPARE(root()->property("currentIndex").toInt(), 1);
}

void tst_Tabs::escapeOnAPill()
{
    QVERIFY(show("WPillTabBar {" + Pills + "}"));
    QSignalSpy escaped(root(), SIGNAL(escapePressed()));
    press(Qt::Key_Tab);
    press(Qt::Key_Escape);
    QCOMPARE(escaped.count(), 1);
}

void tst_Tabs::overflowListIsMadeOnDemand()
{
    QVERIFY(show("WPillTabBar { tabWidth: 80; width: 210;" + Pills + "}"));
    QVERIFY(!overflowList());
    QSignalSpy leaving(root(), SIGNAL(shouldSaveFocusState()));
    click(moreButton());
    QVERIFY(overflowList());
    QTRY_VERIFY(overflowList()->property("opened").toBool());
    QCOMPARE(leaving.count(), 1);
    QCOMPARE(overflowList()->property("model").toList().size(), 2);
    const QPointer<QObject> list = overflowList();
    press(Qt::Key_Escape);
    QTRY_VERIFY(!list->property("visible").toBool());
    click(moreButton());
    QCOMPARE(overflowList(), list.data());
    QCOMPARE(leaving.count(), 2);
    root()->setWidth(340);
    QTRY_VERIFY(!list);
    QVERIFY(!overflowList());
}

void tst_Tabs::overflowListChooses_data()
{
    QTest::addColumn<bool>("byKeyboard");
    QTest::newRow("keyboard") << true;
    QTest::newRow("mouse") << false;
}

void tst_Tabs::overflowListChooses()
{
    QFETCH(const bool, byKeyboard);
    QVERIFY(show("WPillTabBar { tabWidth: 80; width: 210;" + Pills + "}"));
    QSignalSpy clicked(root(), SIGNAL(clicked(int)));
    if (byKeyboard) {
        press(Qt::Key_Tab);
        press(Qt::Key_End);
        press(Qt::Key_Return);
    } else {
        click(moreButton());
    }
    QTRY_VERIFY(overflowList()->property("opened").toBool());
    auto *rows = overflowList()->property("contentItem").value<QQuickItem *>();
    if (byKeyboard) {
        press(Qt::Key_Down);
        press(Qt::Key_Return);
    } else {
        QQuickItem *row = nullptr;
        const auto findRow = [&] {
            QMetaObject::invokeMethod(rows, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, 1));
            return row != nullptr;
        };
        QTRY_VERIFY(findRow());
        click(row);
    }
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked[0][0].toInt(), 3);
    QCOMPARE(root()->property("currentIndex").toInt(), 3);
    QCOMPARE(pillTexts(), QStringList({u"Aaaaaaaa"_s, u"Dddddddd"_s}));
    QVERIFY(!root()->property("overflowListWasClosed").toBool());
    QTRY_VERIFY(pill(1)->hasActiveFocus());
    QCOMPARE(hasRing(pill(1)), byKeyboard);
}

void tst_Tabs::overflowListIsClosedWithoutAChoice_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("focus");
    QTest::newRow("escape") << int(Qt::Key_Escape) << u"more"_s;
    QTest::newRow("tab") << int(Qt::Key_Tab) << u"after"_s;
    QTest::newRow("backtab") << int(Qt::Key_Backtab) << u"more"_s;
}

void tst_Tabs::overflowListIsClosedWithoutAChoice()
{
    QFETCH(const int, key);
    QFETCH(const QString, focus);
    QVERIFY(show("Column { WPillTabBar { objectName: 'bar'; tabWidth: 80; width: 210;" + Pills
                 + "} WButton { objectName: 'after'; text: 'After' } }"));
    auto *bar = find(u"bar"_s);
    QSignalSpy clicked(bar, SIGNAL(clicked(int)));
    QSignalSpy escaped(bar, SIGNAL(escapePressed()));
    press(Qt::Key_Tab);
    press(Qt::Key_End);
    press(Qt::Key_Return);
    auto *list = bar->property("overflowList").value<QObject *>();
    QVERIFY(list);
    QTRY_VERIFY(list->property("opened").toBool());
    QVERIFY(!bar->property("overflowListWasClosed").toBool());
    press(Qt::Key(key));
    QTRY_VERIFY(!list->property("visible").toBool());
    QVERIFY(bar->property("overflowListWasClosed").toBool());
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(escaped.count(), 0);
    QQuickItem *expected = focus == "more"_L1 ? bar->property("overflowButton").value<QQuickItem *>() : find(focus);
    QTRY_VERIFY(expected->hasActiveFocus());
    QVERIFY(hasRing(expected));
}

void tst_Tabs::moreButtonClosesTheList()
{
    QVERIFY(show("WPillTabBar { tabWidth: 80; width: 210;" + Pills + "}"));
    click(moreButton());
    QTRY_VERIFY(overflowList()->property("opened").toBool());
    QVERIFY(moreButton()->property("checked").toBool());
    click(moreButton());
    QTRY_VERIFY(!overflowList()->property("visible").toBool());
    QVERIFY(!moreButton()->property("checked").toBool());
    QVERIFY(root()->property("overflowListWasClosed").toBool());
}

void tst_Tabs::pillColours()
{
    QVERIFY(show("WPillTabBar { backgroundColorSetName: 'panel-secondary-background';"
                 "borderColorSetName: 'separator-primary';"
                 + Pills + "}"));
    moveMouseAway();
    const auto background = [this](int index) { return pill(index)->property("colour").value<QColor>(); };
    const auto text = [this](int index) { return pill(index)->property("textColor").value<QColor>(); };
    for (const QString &mode : {u"default"_s, u"dark"_s, u"highcontrast"_s}) {
        if (application()->getThemeMode() != mode)
            application()->setThemeMode(mode);
        QCOMPARE(background(0), colour("tab-active-background", "checked"));
        QCOMPARE(text(0), colour("tab-active-text", "checked"));
        QCOMPARE(background(1), colour("tab-inactive-background", "normal"));
        QCOMPARE(text(1), colour("tab-inactive-text", "normal"));
    }
    moveMouseTo(pill(1));
    QCOMPARE(background(1), colour("tab-inactive-background", "hovered"));
    root()->setEnabled(false);
    QCOMPARE(background(0), colour("tab-active-background", "disabled"));
    QCOMPARE(text(1), colour("tab-inactive-text", "disabled"));
    const QQuickItem *container = root()->childItems().constFirst();
    QCOMPARE(container->property("color").value<QColor>(), colour("panel-secondary-background", "disabled"));
    QCOMPARE(QQmlProperty::read(container, u"border.color"_s).value<QColor>(), colour("separator-primary", "disabled"));
    QCOMPARE(container->property("radius").toReal(), root()->height() / 2);
}

void tst_Tabs::pillsMirror()
{
    QVERIFY(show("WPillTabBar { tabWidth: 80; width: 300; LayoutMirroring.enabled: true;" + Pills + "}"));
    QCOMPARE(pill(0)->mapToItem(root(), QPointF()).x(), 300.0 - 4 - 80);
    QVERIFY(moreButton()->mapToItem(root(), QPointF()).x() < pill(2)->mapToItem(root(), QPointF()).x());
}

void tst_Tabs::pillAccessibility()
{
    QVERIFY(show("WPillTabBar { tabWidth: 80; width: 210; moreTooltip: 'More';"
                 "model: ['A', { iconName: 'star-bold', tooltip: 'Favourites' }, 'C', 'D'] }"));
    QAccessible::setActive(true);
    QCOMPARE(QAccessible::queryAccessibleInterface(root())->role(), QAccessible::PageTabList);
    QAccessibleInterface *first = QAccessible::queryAccessibleInterface(pill(0));
    QAccessibleInterface *second = QAccessible::queryAccessibleInterface(pill(1));
    QCOMPARE(first->role(), QAccessible::PageTab);
    QCOMPARE(first->text(QAccessible::Name), u"A"_s);
    QVERIFY(first->state().selected);
    QCOMPARE(second->text(QAccessible::Name), u"Favourites"_s);
    QVERIFY(!second->state().selected);
    QSignalSpy clicked(root(), SIGNAL(clicked(int)));
    second->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked[0][0].toInt(), 1);
    QVERIFY(second->state().selected);
    QCOMPARE(QAccessible::queryAccessibleInterface(moreButton())->role(), QAccessible::Button);
    QCOMPARE(QAccessible::queryAccessibleInterface(moreButton())->text(QAccessible::Name), u"More"_s);
}

LUMAKIT_TEST_MAIN(tst_Tabs)
#include "tst_tabs.moc"
