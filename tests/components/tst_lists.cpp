#include <ComponentTest.h>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QRandomGenerator>
#include <QStyleHints>

using namespace Qt::StringLiterals;

namespace {

// Rows that belong to sessions, and change in every way a list can.
class Contacts : public QAbstractListModel
{
public:
    enum Role { Session = Qt::UserRole + 1, Text };
    struct Row
    {
        QString session;
        QString text;
    };

    explicit Contacts(const QList<Row> &rows)
        : m_rows(rows)
    {
    }

    const QList<Row> &contacts() const { return m_rows; }
    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }
    QVariant data(const QModelIndex &index, int role) const override
    {
        const Row &row = m_rows[index.row()];
        return role == Session ? row.session : role == Text ? row.text : QVariant();
    }
    QHash<int, QByteArray> roleNames() const override { return {{Session, "session"}, {Text, "text"}}; }

    void insert(int at, const QList<Row> &rows)
    {
        beginInsertRows({}, at, at + int(rows.size()) - 1);
        for (int i = 0; i < rows.size(); ++i)
            m_rows.insert(at + i, rows[i]);
        endInsertRows();
    }
    void remove(int at, int count)
    {
        beginRemoveRows({}, at, at + count - 1);
        m_rows.remove(at, count);
        endRemoveRows();
    }
    // Moves `count` rows in front of the row that is at `to` before.
    void move(int at, int count, int to)
    {
        if (!beginMoveRows({}, at, at + count - 1, {}, to))
            return;
        const QList<Row> moved = m_rows.mid(at, count);
        m_rows.remove(at, count);
        for (int i = 0; i < count; ++i)
            m_rows.insert((to > at ? to - count : to) + i, moved[i]);
        endMoveRows();
    }
    void rename(int at, const QString &session)
    {
        m_rows[at].session = session;
        Q_EMIT dataChanged(index(at), index(at), {Session});
    }
    void reset(const QList<Row> &rows)
    {
        beginResetModel();
        m_rows = rows;
        endResetModel();
    }

private:
    QList<Row> m_rows;
};

const QList<Contacts::Row> SomeContacts = {
    {u"A"_s, u"Ada"_s}, {u"A"_s, u"Alan"_s}, {u"B"_s, u"Bob"_s}, {u"C"_s, u"Carl"_s}, {u"C"_s, u"Cleo"_s}};

} // namespace

// Lists, grids and lists in sessions, with what scrolls them.
class tst_Lists : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void scrollBarPages_data();
    void scrollBarPages();
    void scrollBarRepeatsWhileHeld();
    void scrollBarHandleIsDragged();
    void scrollBarByWheel();
    void scrollBarFades_data();
    void scrollBarFades();
    void scrollBarSizes();
    void scrollBarColours();

    void wheelScrollsByLines_data();
    void wheelScrollsByLines();
    void wheelScrollsSideways();
    void wheelThatIsNotTaken_data();
    void wheelThatIsNotTaken();
    void wheelAsksForTheExtent();
    void wheelEndsAFlick();
    void helperLetsPressesThrough();

    void listKeys_data();
    void listKeys();
    void listRing();
    void listIsATabStop();
    void viewsThatAreEmptiedKeepTheFocus_data();
    void viewsThatAreEmptiedKeepTheFocus();
    void listEmptyState_data();
    void listEmptyState();
    void listWithItsScrollBar_data();
    void listWithItsScrollBar();
    void listThatDoesNotScroll();
    void viewsHaveTheCurrentScrollBar_data();
    void viewsHaveTheCurrentScrollBar();
    void listThatFitsHidesItsScrollBar();
    void listIsScrolling();
    void listAccessibility();
    void gridKeys_data();
    void gridKeys();
    void gridScrolls();

    void sessionRows_data();
    void sessionRows();
    void sessionModelIsCareful();
    void sessionModelAgainstAReference();
    void sessionModelOutlivesItsSource();

    void sessionsByMouse();
    void sessionsByKeyboard_data();
    void sessionsByKeyboard();
    void sessionsOneAtATime();
    void sessionsByCode();
    void collapsedSessionsCostNothing();
    void expandableListKeys_data();
    void expandableListKeys();
    void expandableListWithoutKeys();
    void expandableListEmptyState();
    void rowData();
    void visualFocus_data();
    void visualFocus();
    void rowsThatStandAlone();
    void heldKeyTriggersOnce_data();
    void heldKeyTriggersOnce();
    void rowColours();
    void sessionArrow_data();
    void sessionArrow();
    void rowAccessibility();

private:
    QQuickItem *flickable() const { return root()->objectName() == "view"_L1 ? root() : find(u"view"_s); }
    qreal contentY() const { return flickable()->property("contentY").toReal(); }
    static void wheel(QQuickItem *item, int notches)
    {
        const QPointF place = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::wheelEvent(item->window(), place, {0, 120 * notches});
    }
    qreal lineStep() const { return QGuiApplication::styleHints()->wheelScrollLines() * 24.0; }
    QColor colour(const char *set, const char *state) const
    {
        return application()->getColorSet(QString::fromLatin1(set)).getColor(QString::fromLatin1(state));
    }
    // Of a WListView or what is built on it.
    QQuickItem *view() const { return root()->property("listView").value<QQuickItem *>(); }
    static QQuickItem *delegateAt(QQuickItem *view, int index)
    {
        QQuickItem *item = nullptr;
        QMetaObject::invokeMethod(view, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, item), Q_ARG(int, index));
        return item;
    }
    // A row of a list in sessions, or the head of one.
    QQuickItem *row(int index) const
    {
        const QQuickItem *loader = delegateAt(view(), index);
        return loader ? loader->property("item").value<QQuickItem *>() : nullptr;
    }
    QStringList rows() const;
    static bool hasRing(const QQuickItem *item);
};

// What a session's rows show, and the heads of sessions in brackets.
QStringList tst_Lists::rows() const
{
    const auto *model = view()->property("model").value<QAbstractItemModel *>();
    const QHash<int, QByteArray> roles = model->roleNames();
    QStringList texts;
    for (int i = 0; i < model->rowCount(); ++i) {
        const QModelIndex index = model->index(i, 0);
        texts << (index.data(roles.key("isSession")).toBool()
                      ? u"[%1]"_s.arg(index.data(roles.key("sessionName")).toString())
                      : index.data(roles.key("text")).toString());
    }
    return texts;
}

// The ring of the focus is the only painted child of a row.
bool tst_Lists::hasRing(const QQuickItem *item)
{
    for (const QQuickItem *child : item->childItems()) {
        if (child->inherits("QQuickPaintedItem") && child->isVisible())
            return true;
    }
    return false;
}

const QByteArray Page = "Flickable { id: view; objectName: 'view'; width: 200; height: 200; contentHeight: 1000;"
                        "contentWidth: 1000; boundsBehavior: Flickable.StopAtBounds;";

void tst_Lists::scrollBarPages_data()
{
    QTest::addColumn<QByteArray>("attached");
    QTest::addColumn<QPointF>("position"); // on the bar
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QPointF>("content");
    QTest::newRow("below the handle") << QByteArray("vertical") << QPointF(8, 190) << true << QPointF(0, 600);
    QTest::newRow("above the handle") << QByteArray("vertical") << QPointF(8, 10) << true << QPointF(0, 200);
    QTest::newRow("on the handle") << QByteArray("vertical") << QPointF(8, 100) << true << QPointF(0, 400);
    QTest::newRow("disabled") << QByteArray("vertical") << QPointF(8, 190) << false << QPointF(0, 400);
    QTest::newRow("right of the handle") << QByteArray("horizontal") << QPointF(190, 8) << true << QPointF(200, 400);
}

void tst_Lists::scrollBarPages()
{
    QFETCH(const QByteArray, attached);
    QFETCH(const QPointF, position);
    QFETCH(const bool, enabled);
    QFETCH(const QPointF, content);
    QVERIFY(show(Page + "contentY: 400; T.ScrollBar." + attached + ": DScrollBar { objectName: 'bar' } }"));
    auto *bar = find(u"bar"_s);
    bar->setEnabled(enabled);
    click(bar, position);
    QCOMPARE(flickable()->property("contentX").toReal(), content.x());
    QCOMPARE(contentY(), content.y());
}

void tst_Lists::scrollBarRepeatsWhileHeld()
{
    QVERIFY(show(Page + "T.ScrollBar.vertical: DScrollBar { objectName: 'bar' } }"));
    const QPoint place(192, 100);
    QTest::mousePress(window(), Qt::LeftButton, {}, place);
    QCOMPARE(contentY(), 200.0);
    QTRY_COMPARE(contentY(), 400.0); // the handle has come to the cursor
    QSignalSpy moved(flickable(), SIGNAL(contentYChanged()));
    QVERIFY(!moved.wait(150));
    QTest::mouseRelease(window(), Qt::LeftButton, {}, place);
    QCOMPARE(contentY(), 400.0);
}

void tst_Lists::scrollBarHandleIsDragged()
{
    QVERIFY(show(Page + "T.ScrollBar.vertical: DScrollBar { objectName: 'bar' } }"));
    QTest::mousePress(window(), Qt::LeftButton, {}, QPoint(192, 20));
    QTest::mouseMove(window(), QPoint(192, 60));
    QTest::mouseMove(window(), QPoint(192, 100));
    QTest::mouseRelease(window(), Qt::LeftButton, {}, QPoint(192, 100));
    QVERIFY2(qAbs(contentY() - 400) < 30, QByteArray::number(contentY()));
}

void tst_Lists::scrollBarByWheel()
{
    QVERIFY(show(Page + "T.ScrollBar.vertical: DScrollBar { objectName: 'bar' } }"));
    wheel(find(u"bar"_s), -1);
    QCOMPARE(contentY(), 40.0); // a fifth of a page
    wheel(find(u"bar"_s), 2);
    QCOMPARE(contentY(), 0.0);
    wheel(find(u"bar"_s), -100);
    QCOMPARE(contentY(), 800.0);
}

void tst_Lists::scrollBarFades_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<bool>("animationsDisabled");
    QTest::addColumn<bool>("fades");
    QTest::newRow("soon") << 60 << false << true;
    QTest::newRow("without animations") << 60 << true << true;
    QTest::newRow("never") << 0 << false << false;
}

void tst_Lists::scrollBarFades()
{
    QFETCH(const int, interval);
    QFETCH(const bool, animationsDisabled);
    QFETCH(const bool, fades);
    application()->setAnimationsDisabled(animationsDisabled);
    QVERIFY(show(Page + "T.ScrollBar.vertical: DScrollBar { objectName: 'bar'; timerInterval: "
                 + QByteArray::number(interval) + " } }"));
    moveMouseAway();
    const auto *handle = find(u"bar"_s)->property("contentItem").value<QQuickItem *>();
    QTRY_COMPARE(handle->opacity(), fades ? 0.0 : 1.0);
    flickable()->setProperty("contentY", 100);
    if (animationsDisabled)
        QCOMPARE(handle->opacity(), 1.0);
    QTRY_COMPARE(handle->opacity(), 1.0);
    QTRY_COMPARE(handle->opacity(), fades ? 0.0 : 1.0);
    moveMouseTo(find(u"bar"_s));
    QTRY_COMPARE(handle->opacity(), 1.0);
    flickable()->setProperty("contentHeight", 200); // nothing left to scroll
    QTRY_COMPARE(handle->opacity(), 0.0);
}

void tst_Lists::scrollBarSizes()
{
    QVERIFY(show("Item { DScrollBar { objectName: 'upright' }"
                 "DScrollBar { objectName: 'flat'; orientation: Qt.Horizontal; thickness: 20; handleThickness: 10;"
                 "size: 0.5; width: 200 } }"));
    auto *upright = find(u"upright"_s);
    QCOMPARE(upright->property("thickness").toInt(), 16);
    QCOMPARE(upright->property("isHorizontal").toBool(), false);
    QCOMPARE(upright->width(), 16.0);
    QCOMPARE(upright->height(), upright->property("scrollHeight").toReal());
    upright->setProperty("scrollHeight", 120);
    upright->setProperty("scrollWidth", 12);
    QCOMPARE(upright->size(), QSizeF(12, 120));

    auto *flat = find(u"flat"_s);
    QCOMPARE(flat->property("isHorizontal").toBool(), true);
    QCOMPARE(flat->height(), 20.0);
    const auto *handle = flat->property("contentItem").value<QQuickItem *>();
    QCOMPARE(handle->height(), 10.0);
    QCOMPARE(handle->y(), 5.0);
    QCOMPARE(handle->property("radius").toReal(), 5.0);
    flat->setProperty("size", 0.001);
    QVERIFY(handle->width() >= 20); // can still be caught
}

void tst_Lists::scrollBarColours()
{
    QVERIFY(show("Item { DScrollBar { objectName: 'bar'; height: 200; size: 0.5; policy: T.ScrollBar.AlwaysOn } }"));
    auto *bar = find(u"bar"_s);
    const auto *handle = bar->property("contentItem").value<QQuickItem *>();
    const auto *track = bar->property("background").value<QQuickItem *>();
    const auto color = [](const QQuickItem *item) { return item->property("color").value<QColor>(); };
    moveMouseAway();
    QCOMPARE(color(handle), colour("scrollbar-thumb-background", "normal"));
    QCOMPARE(color(track), colour("scrollbar-track-background", "normal"));
    moveMouseTo(bar);
    QCOMPARE(color(handle), colour("scrollbar-thumb-background", "hovered"));
    QCOMPARE(color(track), colour("scrollbar-track-background", "hovered"));
    QTest::mousePress(window(), Qt::LeftButton, {}, QPoint(8, 40));
    QCOMPARE(color(handle), colour("scrollbar-thumb-background", "pressed"));
    QTest::mouseRelease(window(), Qt::LeftButton, {}, QPoint(8, 40));
    bar->setProperty("handlerColorSetName", u"separator-primary"_s);
    moveMouseAway();
    QCOMPARE(color(handle), colour("separator-primary", "normal"));
    application()->setThemeMode(u"dark"_s);
    QCOMPARE(color(handle), colour("separator-primary", "normal"));
    bar->setEnabled(false);
    QCOMPARE(color(handle), colour("separator-primary", "disabled"));
}

const QByteArray Helper = "WScrollHelper { id: helper; objectName: 'helper'; anchors.fill: view; flickable: view } }";

void tst_Lists::wheelScrollsByLines_data()
{
    QTest::addColumn<qreal>("start");
    QTest::addColumn<int>("notches");
    QTest::addColumn<qreal>("lines");
    QTest::newRow("down") << 0.0 << -1 << 1.0;
    QTest::newRow("three down") << 0.0 << -3 << 3.0;
    QTest::newRow("up") << 500.0 << 2 << -2.0;
    QTest::newRow("up at the top") << 0.0 << 1 << 0.0;
    QTest::newRow("down at the bottom") << 800.0 << -1 << 0.0;
}

void tst_Lists::wheelScrollsByLines()
{
    QFETCH(const qreal, start);
    QFETCH(const int, notches);
    QFETCH(const qreal, lines);
    QVERIFY(show("Item { width: 200; height: 200;" + Page + "}" + Helper));
    flickable()->setProperty("contentY", start);
    auto *helper = find(u"helper"_s);
    wheel(helper, notches);
    QCOMPARE(contentY(), start + lines * lineStep());
    QCOMPARE(helper->property("isScrolling").toBool(), lines != 0);
    QTRY_VERIFY(!helper->property("isScrolling").toBool());
    QCOMPARE(contentY(), start + lines * lineStep()); // no flick follows

    helper->setProperty("lineHeight", 10);
    flickable()->setProperty("contentY", 400);
    wheel(helper, -1);
    QCOMPARE(contentY(), 400 + 10.0 * QGuiApplication::styleHints()->wheelScrollLines());
    QTest::wheelEvent(window(), QPoint(100, 100), {0, -120}, {0, -7}); // a touch pad
    QCOMPARE(contentY(), 407 + 10.0 * QGuiApplication::styleHints()->wheelScrollLines());
}

void tst_Lists::wheelScrollsSideways()
{
    QVERIFY(show("Item { width: 200; height: 200;" + Page + "}" + Helper));
    QTest::wheelEvent(window(), QPoint(100, 100), {-120, 0});
    QCOMPARE(flickable()->property("contentX").toReal(), lineStep());
    QCOMPARE(contentY(), 0.0);
    flickable()->setProperty("contentHeight", 200);
    wheel(find(u"helper"_s), -1);
    QCOMPARE(flickable()->property("contentX").toReal(), 2 * lineStep());
}

void tst_Lists::wheelThatIsNotTaken_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<int>("notches");
    QTest::newRow("at the top") << QByteArray("") << 1;
    QTest::newRow("not interactive") << QByteArray("helper.isInteractive = false") << -1;
    QTest::newRow("flickable not interactive") << QByteArray("view.interactive = false") << -1;
    QTest::newRow("disabled") << QByteArray("helper.enabled = false") << -1;
    QTest::newRow("without a flickable") << QByteArray("helper.flickable = null") << -1;
}

void tst_Lists::wheelThatIsNotTaken()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const int, notches);
    QVERIFY(show("MouseArea { property int count: 0; onWheel: ++count; width: 200; height: 200;"
                 "Component.onCompleted: {"
                 + settings
                 + "}"
                   "Flickable { id: view; objectName: 'view'; contentHeight: 1000; height: 200 }"
                 + Helper));
    wheel(root(), notches);
    QCOMPARE(root()->property("count").toInt(), 1);
    QCOMPARE(contentY(), 0.0);
}

void tst_Lists::wheelAsksForTheExtent()
{
    QVERIFY(show("Item { width: 200; height: 200;" + Page + "function maxYExtent() { return -50; } }" + Helper));
    auto *helper = find(u"helper"_s);
    wheel(helper, -3);
    QCOMPARE(contentY(), 3 * lineStep());
    helper->setProperty("canCallMaxYExtent", true);
    wheel(helper, -3);
    QCOMPARE(contentY(), 50.0);
}

void tst_Lists::wheelEndsAFlick()
{
    QVERIFY(show("Item { width: 200; height: 200;" + Page + "}" + Helper));
    QMetaObject::invokeMethod(flickable(), "flick", Q_ARG(qreal, 0.0), Q_ARG(qreal, -500.0));
    QVERIFY(flickable()->property("flicking").toBool());
    QVERIFY(find(u"helper"_s)->property("isScrolling").toBool());
    QTRY_VERIFY(contentY() > 0);
    wheel(find(u"helper"_s), -1);
    QVERIFY(!flickable()->property("flicking").toBool());
}

void tst_Lists::helperLetsPressesThrough()
{
    QVERIFY(show("Item { width: 200; height: 200;" + Page
                 + "WButton { objectName: 'button'; width: 200; height: 200 } }" + Helper));
    auto *button = find(u"button"_s);
    QSignalSpy triggered(button, SIGNAL(triggered()));
    moveMouseTo(button);
    QVERIFY(button->property("hovered").toBool());
    click(button);
    QCOMPARE(triggered.count(), 1);
}

const QByteArray List = "WListView { width: 216; height: 200; listView.model: 20; listView.delegate: Item {"
                        "required property int index; width: ListView.view.width; height: 40 }";

const QByteArray Grid = "WGridView { width: 216; height: 200; cellWidth: 50; cellHeight: 50; model: 30;"
                        "delegate: Item { width: 50; height: 50 }";

void tst_Lists::listKeys_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("index");
    QTest::newRow("down") << 3 << int(Qt::Key_Down) << 4;
    QTest::newRow("up") << 3 << int(Qt::Key_Up) << 2;
    QTest::newRow("up at the top") << 0 << int(Qt::Key_Up) << 0;
    QTest::newRow("down at the bottom") << 19 << int(Qt::Key_Down) << 19;
    QTest::newRow("home") << 7 << int(Qt::Key_Home) << 0;
    QTest::newRow("end") << 7 << int(Qt::Key_End) << 19;
    QTest::newRow("page down") << 3 << int(Qt::Key_PageDown) << 8;
    QTest::newRow("page up") << 8 << int(Qt::Key_PageUp) << 3;
    QTest::newRow("page down near the bottom") << 17 << int(Qt::Key_PageDown) << 19;
    QTest::newRow("page up near the top") << 2 << int(Qt::Key_PageUp) << 0;
    QTest::newRow("another key") << 3 << int(Qt::Key_Left) << 3;
}

void tst_Lists::listKeys()
{
    QFETCH(const int, start);
    QFETCH(const int, key);
    QFETCH(const int, index);
    QVERIFY(show(List + "}"));
    root()->setProperty("currentIndex", start);
    view()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key(key));
    QCOMPARE(root()->property("currentIndex").toInt(), index);
    const QQuickItem *current = delegateAt(view(), index);
    QVERIFY(current);
    QVERIFY(current->hasActiveFocus());
    const QRectF place = current->mapRectToItem(view(), current->boundingRect());
    if (index != start)
        QVERIFY(view()->boundingRect().contains(place));
}

void tst_Lists::listRing()
{
    QVERIFY(show(List + "}"));
    QVERIFY(!hasRing(delegateAt(view(), 0)));
    view()->forceActiveFocus(Qt::MouseFocusReason);
    QVERIFY(!hasRing(delegateAt(view(), 0)));
    press(Qt::Key_Down);
    QVERIFY(!hasRing(delegateAt(view(), 0)));
    QVERIFY(hasRing(delegateAt(view(), 1)));
    press(Qt::Key_End);
    QVERIFY(hasRing(delegateAt(view(), 19)));
    root()->setProperty("focusColorSetName", u"transparent"_s);
    QVERIFY(view()->hasActiveFocus());
}

void tst_Lists::listIsATabStop()
{
    QVERIFY(show("Column { WButton { objectName: 'before' }" + List
                 + "objectName: 'list' }"
                   "WButton { objectName: 'after' } }"));
    auto *list = find(u"list"_s)->property("listView").value<QQuickItem *>();
    find(u"before"_s)->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Tab);
    QVERIFY(list->hasActiveFocus());
    QVERIFY(hasRing(delegateAt(list, 0)));
    press(Qt::Key_Tab);
    QVERIFY(find(u"after"_s)->hasActiveFocus());
    QVERIFY(!hasRing(delegateAt(list, 0)));
    list->setProperty("model", 0);
    press(Qt::Key_Backtab);
    QVERIFY(find(u"before"_s)->hasActiveFocus()); // nothing to go to in an empty list
}

void tst_Lists::viewsThatAreEmptiedKeepTheFocus_data()
{
    QTest::addColumn<QByteArray>("view");
    QTest::newRow("list") << List + "objectName: 'view'; readonly property Item stop: listView }";
    QTest::newRow("grid") << Grid + "objectName: 'view'; readonly property Item stop: this }";
}

void tst_Lists::viewsThatAreEmptiedKeepTheFocus()
{
    QFETCH(const QByteArray, view);
    QVERIFY(show("Column { WButton { objectName: 'before' }" + view + "}"));
    auto *stop = find(u"view"_s)->property("stop").value<QQuickItem *>();
    stop->forceActiveFocus(Qt::TabFocusReason);
    stop->setProperty("model", 0);
    QVERIFY(stop->hasActiveFocus());
    press(Qt::Key_Tab);
    QVERIFY(find(u"before"_s)->hasActiveFocus());
    press(Qt::Key_Tab);
    QVERIFY(find(u"before"_s)->hasActiveFocus()); // empty, it is no stop any more
}

void tst_Lists::listEmptyState_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("empty") << QByteArray("0") << true;
    QTest::newRow("empty array") << QByteArray("[]") << true;
    QTest::newRow("rows") << QByteArray("2") << false;
    QTest::newRow("no model yet") << QByteArray("undefined") << false;
}

void tst_Lists::listEmptyState()
{
    QFETCH(const QByteArray, model);
    QFETCH(const bool, isShown);
    QVERIFY(show("WListView { width: 300; height: 280; emptyStateHeader: 'None'; emptyStateSubtitle: 'Add one';"
                 "emptyStateImage: 'users'; emptyStateImageSize: 48; emptyStateBorderWidth: 2; listView.model: "
                 + model + "; listView.delegate: Item { height: 20 } }"));
    const auto state = [this]() -> QQuickItem * {
        for (QQuickItem *item : view()->findChildren<QQuickItem *>()) {
            if (item->property("subtitle").isValid())
                return item;
        }
        return nullptr;
    };
    QCOMPARE(state() != nullptr, isShown);
    view()->setProperty("model", 0);
    QVERIFY(state());
    QCOMPARE(state()->property("title").toString(), u"None"_s);
    QCOMPARE(state()->property("subtitle").toString(), u"Add one"_s);
    QCOMPARE(state()->property("svgImageName").toString(), u"users"_s);
    QCOMPARE(state()->property("svgImageSize").toInt(), 48);
    QCOMPARE(state()->property("borderWidth").toInt(), 2);
    QCOMPARE(state()->size(), view()->size());
    view()->setProperty("model", 3);
    QTRY_VERIFY(!state());
}

void tst_Lists::listWithItsScrollBar_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("mirrored") << true;
}

void tst_Lists::listWithItsScrollBar()
{
    QFETCH(const bool, mirrored);
    QVERIFY(show(List + "LayoutMirroring.enabled: " + QByteArray(mirrored ? "true" : "false") + "}"));
    auto *bar = root()->property("scrollBar").value<QQuickItem *>();
    QTRY_COMPARE(bar->size(), QSizeF(16, 200));
    QCOMPARE(bar->x(), mirrored ? 0.0 : 200.0);
    QCOMPARE(view()->x(), mirrored ? 16.0 : 0.0);
    QCOMPARE(view()->width(), 200.0);
    QCOMPARE(root()->property("widthNoScroll").toReal(), 200.0);
    click(bar, QPointF(8, 190));
    QCOMPARE(view()->property("contentY").toReal(), 200.0);
}

void tst_Lists::listThatDoesNotScroll()
{
    QVERIFY(show(List + "scrollable: false }"));
    QTRY_COMPARE(root()->implicitHeight(), 800.0);
    QVERIFY(!root()->property("scrollBar").value<QQuickItem *>()->isVisible());
    QCOMPARE(root()->property("widthNoScroll").toReal(), 216.0);
    wheel(view(), -1);
    QCOMPARE(view()->property("contentY").toReal(), 0.0);
    view()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    QCOMPARE(root()->property("currentIndex").toInt(), 1);
}

void tst_Lists::viewsHaveTheCurrentScrollBar_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::newRow("list") << QByteArray("WListView {}");
    QTest::newRow("grid") << QByteArray("WGridView {}");
    QTest::newRow("sessions") << QByteArray("WExpandableListView {}");
}

void tst_Lists::viewsHaveTheCurrentScrollBar()
{
    QFETCH(const QByteArray, qml);
    QVERIFY(show(qml));
    const auto *bar = root()->property("scrollBar").value<QQuickItem *>();
    QVERIFY(bar);
    const QByteArray type = bar->metaObject()->className();
    QVERIFY2(type.startsWith("LKScrollBar"), type);
}

// Its room stays free, so that no row moves when the bar appears.
void tst_Lists::listThatFitsHidesItsScrollBar()
{
    QVERIFY(show(List + "}"));
    const auto *bar = root()->property("scrollBar").value<QQuickItem *>();
    QTRY_COMPARE(bar->opacity(), 1.0);
    QCOMPARE(root()->property("widthNoScroll").toReal(), 200.0);
    view()->setProperty("model", 1);
    QTRY_COMPARE(bar->opacity(), 0.0);
    QCOMPARE(root()->property("widthNoScroll").toReal(), 200.0);
    view()->setProperty("model", 50);
    QTRY_COMPARE(bar->opacity(), 1.0);
}

void tst_Lists::listIsScrolling()
{
    QVERIFY(show(List + "}"));
    QSignalSpy changed(root(), SIGNAL(isScrollingChanged()));
    wheel(view(), -1);
    QCOMPARE(view()->property("contentY").toReal(), lineStep());
    QVERIFY(root()->property("isScrolling").toBool());
    QTRY_VERIFY(!root()->property("isScrolling").toBool());
    QCOMPARE(changed.count(), 2);
    QTest::mousePress(window(), Qt::LeftButton, {}, QPoint(208, 30)); // the handle
    QVERIFY(root()->property("isScrolling").toBool());
    QTest::mouseRelease(window(), Qt::LeftButton, {}, QPoint(208, 30));
    QVERIFY(!root()->property("isScrolling").toBool());
}

void tst_Lists::listAccessibility()
{
    QVERIFY(show(List + "}"));
    QAccessible::setActive(true);
    QCOMPARE(QAccessible::queryAccessibleInterface(view())->role(), QAccessible::List);
    auto *bar = root()->property("scrollBar").value<QQuickItem *>();
    QCOMPARE(QAccessible::queryAccessibleInterface(bar)->role(), QAccessible::ScrollBar);
    QVERIFY(show(Grid + "}"));
    QCOMPARE(QAccessible::queryAccessibleInterface(root())->role(), QAccessible::List);
}

void tst_Lists::gridKeys_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("index");
    QTest::newRow("right") << 3 << int(Qt::Key_Right) << false << 4;
    QTest::newRow("left") << 4 << int(Qt::Key_Left) << false << 3;
    QTest::newRow("down") << 3 << int(Qt::Key_Down) << false << 7;
    QTest::newRow("up") << 7 << int(Qt::Key_Up) << false << 3;
    QTest::newRow("up in the first row") << 3 << int(Qt::Key_Up) << false << 3;
    QTest::newRow("down where there is no cell below") << 27 << int(Qt::Key_Down) << false << 27;
    QTest::newRow("right at the end") << 29 << int(Qt::Key_Right) << false << 29;
    QTest::newRow("left at the start") << 0 << int(Qt::Key_Left) << false << 0;
    QTest::newRow("home") << 9 << int(Qt::Key_Home) << false << 0;
    QTest::newRow("end") << 9 << int(Qt::Key_End) << false << 29;
    QTest::newRow("page down") << 1 << int(Qt::Key_PageDown) << false << 17;
    QTest::newRow("page up") << 17 << int(Qt::Key_PageUp) << false << 1;
    QTest::newRow("right, mirrored") << 4 << int(Qt::Key_Right) << true << 3;
    QTest::newRow("left, mirrored") << 3 << int(Qt::Key_Left) << true << 4;
}

void tst_Lists::gridKeys()
{
    QFETCH(const int, start);
    QFETCH(const int, key);
    QFETCH(const bool, mirrored);
    QFETCH(const int, index);
    QVERIFY(show(Grid + "LayoutMirroring.enabled: " + QByteArray(mirrored ? "true" : "false") + "}"));
    root()->setProperty("currentIndex", start);
    root()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key(key));
    QCOMPARE(root()->property("currentIndex").toInt(), index);
    const QQuickItem *current = delegateAt(root(), index);
    QVERIFY(current);
    QVERIFY(current->hasActiveFocus());
    QVERIFY(hasRing(current));
    QVERIFY(root()->boundingRect().contains(current->mapRectToItem(root(), current->boundingRect())));
}

void tst_Lists::gridScrolls()
{
    QVERIFY(show(Grid + "}"));
    auto *bar = root()->property("scrollBar").value<QQuickItem *>();
    QVERIFY(bar);
    QCOMPARE(bar->x(), 200.0);
    QCOMPARE(bar->height(), 200.0);
    wheel(root(), -1);
    QCOMPARE(root()->property("contentY").toReal(), lineStep());
    QVERIFY(root()->property("isScrolling").toBool());
    QTRY_VERIFY(!root()->property("isScrolling").toBool());
    click(bar, QPointF(8, 195));
    QCOMPARE(root()->property("contentY").toReal(), 200.0); // the last page: 8 rows of 50
}

const QByteArray Sessions = R"(WExpandableListView {
    width: 216
    height: 400
    currentIndex: 0
    model: ListModel {
        id: contacts
        ListElement { session: "A"; text: "Ada" }
        ListElement { session: "A"; text: "Alan" }
        ListElement { session: "B"; text: "Bob" }
        ListElement { session: "C"; text: "Carl" }
        ListElement { session: "C"; text: "Cleo" }
    }
    function take(row) { contacts.remove(row); }
    function clear() { contacts.clear(); }
)";

void tst_Lists::sessionRows_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("all expanded") << QByteArray() << QStringList{u"[A]"_s, u"Ada"_s, u"Alan"_s, u"[B]"_s,
                                                                 u"Bob"_s, u"[C]"_s, u"Carl"_s, u"Cleo"_s};
    QTest::newRow("one collapsed") << QByteArray("expandedStatusList: ({ B: false, C: true })")
                                   << QStringList{u"[A]"_s, u"Ada"_s,  u"Alan"_s, u"[B]"_s,
                                                  u"[C]"_s, u"Carl"_s, u"Cleo"_s};
    QTest::newRow("one of all") << QByteArray("isMultiCollapsed: false; expandedSessionName: 'B'")
                                << QStringList{u"[A]"_s, u"[B]"_s, u"Bob"_s, u"[C]"_s};
    QTest::newRow("none of all") << QByteArray("isMultiCollapsed: false") << QStringList{u"[A]"_s, u"[B]"_s, u"[C]"_s};
    QTest::newRow("an unknown session") << QByteArray("isMultiCollapsed: false; expandedSessionName: 'D'")
                                        << QStringList{u"[A]"_s, u"[B]"_s, u"[C]"_s};
    QTest::newRow("another role") << QByteArray("sessionRole: 'other'")
                                  << QStringList{u"Ada"_s, u"Alan"_s, u"Bob"_s, u"Carl"_s, u"Cleo"_s};
}

void tst_Lists::sessionRows()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const QStringList, shown);
    QVERIFY(show(Sessions + settings + "}"));
    QCOMPARE(rows(), shown);
    QCOMPARE(view()->property("count").toInt(), shown.size());
}

// Views are told no more than what has changed.
void tst_Lists::sessionModelIsCareful()
{
    Contacts contacts(SomeContacts);
    QVERIFY(show("WExpandableListView { width: 216; height: 400 }"));
    root()->setProperty("model", QVariant::fromValue<QAbstractItemModel *>(&contacts));
    auto *model = view()->property("model").value<QAbstractItemModel *>();
    const QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy inserted(model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(model, &QAbstractItemModel::modelReset);

    contacts.insert(1, {{u"A"_s, u"Ann"_s}});
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted[0][1].toInt(), 2);
    QCOMPARE(inserted[0][2].toInt(), 2);
    QCOMPARE(rows().first(4), QStringList({u"[A]"_s, u"Ada"_s, u"Ann"_s, u"Alan"_s}));

    contacts.remove(0, 1); // the head of the session stays
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed[0][1].toInt(), 1);
    QCOMPARE(rows().first(3), QStringList({u"[A]"_s, u"Ann"_s, u"Alan"_s}));

    contacts.remove(2, 1); // the last of its session
    QCOMPARE(removed.count(), 2);
    QCOMPARE(removed[1][1].toInt(), 3);
    QCOMPARE(removed[1][2].toInt(), 4);
    QCOMPARE(rows(), QStringList({u"[A]"_s, u"Ann"_s, u"Alan"_s, u"[C]"_s, u"Carl"_s, u"Cleo"_s}));

    contacts.rename(1, u"C"_s); // the row goes over to the next session
    QCOMPARE(rows(), QStringList({u"[A]"_s, u"Ann"_s, u"[C]"_s, u"Alan"_s, u"Carl"_s, u"Cleo"_s}));
    contacts.move(3, 1, 0);
    QCOMPARE(rows(), QStringList({u"[C]"_s, u"Cleo"_s, u"[A]"_s, u"Ann"_s, u"[C]"_s, u"Alan"_s, u"Carl"_s}));
    QCOMPARE(reset.count(), 0);

    contacts.reset({{u"D"_s, u"Dora"_s}});
    QCOMPARE(rows(), QStringList({u"[D]"_s, u"Dora"_s}));
    QCOMPARE(reset.count(), 1);
    tidy(); // the view goes before the model
}

void tst_Lists::sessionModelAgainstAReference()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    Contacts contacts(SomeContacts);
    QVERIFY(show("WExpandableListView { width: 216; height: 200 }"));
    root()->setProperty("model", QVariant::fromValue<QAbstractItemModel *>(&contacts));
    auto *model = view()->property("model").value<QAbstractItemModel *>();
    const QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy reset(model, &QAbstractItemModel::modelReset);
    const QStringList names = {u"A"_s, u"B"_s, u"C"_s, QString()};
    QVariantMap expanded;
    for (int step = 0; step < 500; ++step) {
        const QString name = names[random.bounded(4)];
        const int count = contacts.rowCount();
        const int at = random.bounded(count + 1);
        const int size = at < count ? 1 + random.bounded(qMin(3, count - at)) : 0;
        switch (random.bounded(5)) {
        case 0:
            contacts.insert(at, {{name, QString::number(step)}, {names[random.bounded(4)], u"%1b"_s.arg(step)}});
            break;
        case 1:
            if (size > 0)
                contacts.remove(at, size);
            break;
        case 2:
            if (size > 0)
                contacts.move(at, size, random.bounded(count + 1));
            break;
        case 3:
            if (size > 0)
                contacts.rename(at, name);
            break;
        default:
            expanded[name] = random.bounded(2) == 1;
            root()->setProperty("expandedStatusList", expanded);
        }
        QStringList wanted;
        QString last;
        for (const Contacts::Row &row : contacts.contacts()) {
            if (row.session != last && !row.session.isEmpty())
                wanted << u"[%1]"_s.arg(row.session);
            last = row.session;
            if (row.session.isEmpty() || expanded.value(row.session, true).toBool())
                wanted << row.text;
        }
        if (rows() != wanted)
            qCritical() << "seed" << seed << "step" << step;
        QCOMPARE(rows(), wanted);
    }
    QCOMPARE(reset.count(), 0);
    tidy(); // the view goes before the model
}

void tst_Lists::sessionModelOutlivesItsSource()
{
    QVERIFY(show("WExpandableListView { function drop() { contacts.destroy(); }"
                 "Component.onCompleted: model = maker.createObject(null)\n"
                 "property Component maker: ListModel { ListElement { session: 'A'; text: 'Ada' } } }"));
    QCOMPARE(rows(), QStringList({u"[A]"_s, u"Ada"_s}));
    delete root()->property("model").value<QObject *>();
    QTRY_COMPARE(view()->property("count").toInt(), 0);
    QVERIFY(!root()->property("model").value<QObject *>());
}

void tst_Lists::sessionsByMouse()
{
    QVERIFY(show(Sessions + "}"));
    QSignalSpy toggled(root(), SIGNAL(sessionToggled(QString, bool)));
    QTRY_VERIFY(row(0));
    const QPointer<QQuickItem> head = row(0);
    const QPointer<QQuickItem> other = row(3);
    click(head);
    QCOMPARE(rows(), QStringList({u"[A]"_s, u"[B]"_s, u"Bob"_s, u"[C]"_s, u"Carl"_s, u"Cleo"_s}));
    QCOMPARE(toggled.count(), 1);
    QCOMPARE(toggled[0][0].toString(), u"A"_s);
    QCOMPARE(toggled[0][1].toBool(), false);
    QVERIFY(!head->property("expanded").toBool());
    QVERIFY(head->hasActiveFocus());
    QTRY_COMPARE(row(1), other.data());
    click(head);
    QCOMPARE(toggled.count(), 2);
    QCOMPARE(toggled[1][1].toBool(), true);
    QCOMPARE(view()->property("count").toInt(), 8);
    QVERIFY(head->property("expanded").toBool());
    QCOMPARE(row(0), head.data());
    QTRY_COMPARE(row(3), other.data());

    QTRY_VERIFY(row(1));
    QSignalSpy triggered(row(1), SIGNAL(triggered()));
    click(row(1));
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(root()->property("currentIndex").toInt(), 1);
    QVERIFY(row(1)->property("isCurrentItem").toBool());
    QVERIFY(row(1)->hasActiveFocus());
    QVERIFY(!hasRing(row(1)));
}

void tst_Lists::sessionsByKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("from");
    QTest::addColumn<bool>("to");
    QTest::newRow("space collapses") << int(Qt::Key_Space) << false << true << false;
    QTest::newRow("enter collapses") << int(Qt::Key_Enter) << false << true << false;
    QTest::newRow("return expands") << int(Qt::Key_Return) << false << false << true;
    QTest::newRow("left collapses") << int(Qt::Key_Left) << false << true << false;
    QTest::newRow("left on a collapsed one") << int(Qt::Key_Left) << false << false << false;
    QTest::newRow("right expands") << int(Qt::Key_Right) << false << false << true;
    QTest::newRow("right on an expanded one") << int(Qt::Key_Right) << false << true << true;
    QTest::newRow("right collapses, mirrored") << int(Qt::Key_Right) << true << true << false;
    QTest::newRow("left expands, mirrored") << int(Qt::Key_Left) << true << false << true;
}

void tst_Lists::sessionsByKeyboard()
{
    QFETCH(const int, key);
    QFETCH(const bool, mirrored);
    QFETCH(const bool, from);
    QFETCH(const bool, to);
    QVERIFY(show(Sessions + "expandedStatusList: ({ A: " + (from ? "true" : "false") + " }); LayoutMirroring.enabled: "
                 + (mirrored ? "true" : "false") + "; LayoutMirroring.childrenInherit: true }"));
    press(Qt::Key_Tab);
    QTRY_VERIFY(row(0) && row(0)->hasActiveFocus());
    QVERIFY(hasRing(row(0)));
    const QPointer<QQuickItem> head = row(0);
    press(Qt::Key(key));
    QCOMPARE(head->property("expanded").toBool(), to);
    QCOMPARE(rows().contains(u"Ada"_s), to);
    QVERIFY(head->hasActiveFocus());
    QVERIFY(hasRing(head));
    QCOMPARE(root()->property("currentIndex").toInt(), 0);
}

void tst_Lists::sessionsOneAtATime()
{
    QVERIFY(show(Sessions + "isMultiCollapsed: false; expandedSessionName: 'A' }"));
    QSignalSpy toggled(root(), SIGNAL(sessionToggled(QString, bool)));
    QTRY_VERIFY(row(4));
    const QPointer<QQuickItem> head = row(4); // of C
    click(head);
    QCOMPARE(root()->property("expandedSessionName").toString(), u"C"_s);
    QCOMPARE(rows(), QStringList({u"[A]"_s, u"[B]"_s, u"[C]"_s, u"Carl"_s, u"Cleo"_s}));
    QVERIFY(head && head->hasActiveFocus()); // the same row, although others have gone before it
    QTRY_COMPARE(root()->property("currentIndex").toInt(), 2);
    QCOMPARE(head->property("expandedSessionName").toString(), u"C"_s);
    click(head);
    QCOMPARE(root()->property("expandedSessionName").toString(), QString());
    QCOMPARE(rows(), QStringList({u"[A]"_s, u"[B]"_s, u"[C]"_s}));
    QCOMPARE(toggled.count(), 2);
}

void tst_Lists::sessionsByCode()
{
    QVERIFY(show(Sessions + "}"));
    QSignalSpy toggled(root(), SIGNAL(sessionToggled(QString, bool)));
    QMetaObject::invokeMethod(root(), "collapseAll");
    QCOMPARE(rows(), QStringList({u"[A]"_s, u"[B]"_s, u"[C]"_s}));
    QCOMPARE(toggled.count(), 3);
    QCOMPARE(root()->property("expandedStatusList").toMap(),
             QVariantMap({{u"A"_s, false}, {u"B"_s, false}, {u"C"_s, false}}));
    QMetaObject::invokeMethod(root(), "setExpanded", Q_ARG(QString, u"B"_s), Q_ARG(bool, true));
    QCOMPARE(rows(), QStringList({u"[A]"_s, u"[B]"_s, u"Bob"_s, u"[C]"_s}));
    QCOMPARE(toggled.count(), 4);
    QMetaObject::invokeMethod(root(), "setExpanded", Q_ARG(QString, u"B"_s), Q_ARG(bool, true));
    QCOMPARE(toggled.count(), 4);
    bool expanded = false;
    QMetaObject::invokeMethod(root(), "isExpanded", Q_RETURN_ARG(bool, expanded), Q_ARG(QString, u"B"_s));
    QVERIFY(expanded);
    QMetaObject::invokeMethod(root(), "expandAll");
    QCOMPARE(view()->property("count").toInt(), 8);
    QCOMPARE(toggled.count(), 6);
}

void tst_Lists::collapsedSessionsCostNothing()
{
    QVERIFY(show("WExpandableListView { width: 216; height: 200; property int made: 0; model: ListModel { id: many }"
                 "delegate: WExpandableDelegate { Component.onCompleted: ++made }\n"
                 "Component.onCompleted: { for (let i = 0; i < 1000; ++i) many.append({ session: 'A', text: 'x' }); }\n"
                 "expandedStatusList: ({ A: false }) }"));
    QTRY_COMPARE(view()->property("count").toInt(), 1);
    QCOMPARE(root()->property("made").toInt(), 0);
    QMetaObject::invokeMethod(root(), "expandAll");
    QCOMPARE(view()->property("count").toInt(), 1001);
    QTRY_VERIFY(root()->property("made").toInt() > 3);
    QVERIFY(root()->property("made").toInt() < 40);
}

void tst_Lists::expandableListKeys_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("index");
    QTest::newRow("down") << 0 << int(Qt::Key_Down) << false << 1;
    QTest::newRow("down onto a head") << 2 << int(Qt::Key_Down) << false << 3;
    QTest::newRow("up onto a row") << 3 << int(Qt::Key_Up) << false << 2;
    QTest::newRow("left to the head") << 2 << int(Qt::Key_Left) << false << 0;
    QTest::newRow("right on a row") << 2 << int(Qt::Key_Right) << false << 2;
    QTest::newRow("home") << 4 << int(Qt::Key_Home) << false << 0;
    QTest::newRow("end") << 4 << int(Qt::Key_End) << false << 7;
    QTest::newRow("right to the head, mirrored") << 7 << int(Qt::Key_Right) << true << 5;
}

void tst_Lists::expandableListKeys()
{
    QFETCH(const int, start);
    QFETCH(const int, key);
    QFETCH(const bool, mirrored);
    QFETCH(const int, index);
    QVERIFY(show(Sessions + "LayoutMirroring.childrenInherit: true; LayoutMirroring.enabled: "
                 + (mirrored ? "true" : "false") + "}"));
    root()->setProperty("currentIndex", start);
    view()->forceActiveFocus(Qt::TabFocusReason);
    QTRY_VERIFY(row(index));
    press(Qt::Key(key));
    QCOMPARE(root()->property("currentIndex").toInt(), index);
    QVERIFY(row(index)->hasActiveFocus());
    QVERIFY(hasRing(row(index)));
    if (index != start)
        QVERIFY(!hasRing(row(start)));
}

void tst_Lists::expandableListWithoutKeys()
{
    QVERIFY(show(Sessions + "arrowKeyEnabled: false }"));
    root()->setProperty("currentIndex", 2);
    view()->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Home, Qt::Key_End}) {
        press(key);
        QCOMPARE(root()->property("currentIndex").toInt(), 2);
    }
}

void tst_Lists::expandableListEmptyState()
{
    QVERIFY(show("WExpandableListView { width: 300; height: 200; emptyStateHeader: 'None' }"));
    const auto isShown = [this] {
        for (const QQuickItem *item : view()->findChildren<QQuickItem *>()) {
            if (item->property("subTitleExtraWidth").isValid())
                return true;
        }
        return false;
    };
    QVERIFY(!isShown()); // no model yet
    QVERIFY(show(Sessions + "emptyStateHeader: 'None' }"));
    QVERIFY(!isShown());
    QMetaObject::invokeMethod(root(), "collapseAll");
    QVERIFY(!isShown());
    QMetaObject::invokeMethod(root(), "clear");
    QTRY_VERIFY(isShown());
}

void tst_Lists::rowData()
{
    QVERIFY(show(Sessions + "delegate: WExpandableDelegate { text: delegateModel?.text ?? ''; delegateHeight: 52 } }"));
    QTRY_VERIFY(row(4));
    QCOMPARE(row(4)->property("text").toString(), u"Bob"_s);
    QCOMPARE(row(4)->property("sessionName").toString(), u"B"_s);
    QCOMPARE(row(4)->property("rowIndex").toInt(), 4);
    QCOMPARE(row(4)->property("listView").value<QObject *>(), root());
    QCOMPARE(row(4)->height(), 52.0);
    QCOMPARE(row(4)->width(), view()->width());
    QVERIFY(row(4)->property("delegateType") != row(3)->property("delegateType"));
    QCOMPARE(row(3)->property("sessionName").toString(), u"B"_s);
    row(4)->property("delegateModel").value<QObject *>()->setProperty("text", u"Bo"_s);
    QCOMPARE(row(4)->property("text").toString(), u"Bo"_s);
    QMetaObject::invokeMethod(root(), "take", Q_ARG(QVariant, 0));
    QTRY_COMPARE(row(3)->property("text").toString(), u"Bo"_s);
    QCOMPARE(row(3)->property("rowIndex").toInt(), 3);
}

const QByteArray FocusRows = R"(Column {
    WExpandableListViewItem {
        id: first; objectName: "first"; width: 200
        nextRowVisualFocusItem: second
        nextSibVisualFocusItem: visualFocusItem === first ? button : null
        prevSibVisualFocusItem: visualFocusItem === first ? null : first
        parentVisualFocusItem: parentItem
        nextVisualFocusItem: second
        WSvgIconButton { id: button; objectName: "button"; focusPolicy: Qt.NoFocus }
    }
    WExpandableListViewItem {
        id: second; objectName: "second"; width: 200
        prevRowVisualFocusItem: first
        prevVisualFocusItem: first
    }
    WButton { id: parentItem; objectName: "parent" }
})";

void tst_Lists::visualFocus_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("end");
    QTest::newRow("down") << u"first"_s << QList<int>{Qt::Key_Down} << u"second"_s;
    QTest::newRow("up") << u"second"_s << QList<int>{Qt::Key_Up} << u"first"_s;
    QTest::newRow("up without an item") << u"first"_s << QList<int>{Qt::Key_Up} << u"first"_s;
    QTest::newRow("right") << u"first"_s << QList<int>{Qt::Key_Right} << u"button"_s;
    QTest::newRow("right twice") << u"first"_s << QList<int>{Qt::Key_Right, Qt::Key_Right} << u"button"_s;
    QTest::newRow("right and back") << u"first"_s << QList<int>{Qt::Key_Right, Qt::Key_Left} << u"first"_s;
    QTest::newRow("left to the parent") << u"first"_s << QList<int>{Qt::Key_Left} << u"parent"_s;
    QTest::newRow("tab") << u"first"_s << QList<int>{Qt::Key_Tab} << u"second"_s;
    QTest::newRow("backtab") << u"second"_s << QList<int>{Qt::Key_Backtab} << u"first"_s;
    // The row remembers which part had the focus.
    QTest::newRow("back to the part") << u"first"_s << QList<int>{Qt::Key_Right, Qt::Key_Down, Qt::Key_Up}
                                      << u"button"_s;
}

void tst_Lists::visualFocus()
{
    QFETCH(const QString, start);
    QFETCH(const QList<int>, keys);
    QFETCH(const QString, end);
    QVERIFY(show(FocusRows));
    find(start)->forceActiveFocus(Qt::TabFocusReason);
    for (const int key : keys)
        press(Qt::Key(key));
    QVERIFY(find(end)->hasActiveFocus());
    if (end == "first"_L1 || end == "second"_L1)
        QVERIFY(hasRing(find(end)));
}

void tst_Lists::rowsThatStandAlone()
{
    QVERIFY(show("Column { WSessionDelegate { objectName: 'head'; width: 200; sessionName: 'Today' }"
                 "WExpandableDelegate { objectName: 'row'; width: 200; text: 'Ada' } }"));
    auto *head = find(u"head"_s);
    QVERIFY(head->property("expanded").toBool());
    QSignalSpy toggled(head, SIGNAL(toggled()));
    press(Qt::Key_Tab);
    QVERIFY(head->hasActiveFocus());
    press(Qt::Key_Space);
    QCOMPARE(toggled.count(), 1);
    head->setProperty("expandedStatusList", QVariantMap({{u"Today"_s, false}}));
    QVERIFY(!head->property("expanded").toBool());
    press(Qt::Key_Tab);
    QVERIFY(find(u"row"_s)->hasActiveFocus());
    head->setEnabled(false);
    click(head);
    QCOMPARE(toggled.count(), 1);
}

void tst_Lists::heldKeyTriggersOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("enter") << int(Qt::Key_Enter);
    QTest::newRow("return") << int(Qt::Key_Return);
}

void tst_Lists::heldKeyTriggersOnce()
{
    QFETCH(const int, key);
    QVERIFY(show("Item { WSessionDelegate { objectName: 'head'; width: 200; sessionName: 'Today' } }"));
    auto *head = find(u"head"_s);
    QSignalSpy toggled(head, SIGNAL(toggled()));
    head->forceActiveFocus(Qt::TabFocusReason);
    for (const bool isAutoRepeat : {false, true, true}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), isAutoRepeat);
        QCoreApplication::sendEvent(window(), &event);
    }
    QCOMPARE(toggled.count(), 1);
}

void tst_Lists::rowColours()
{
    QVERIFY(show("Item { WExpandableDelegate { objectName: 'row'; width: 200; text: 'Ada' } }"));
    auto *item = find(u"row"_s);
    const auto color = [item] { return item->property("color").value<QColor>(); };
    moveMouseAway();
    QCOMPARE(color(), colour("listitem-background", "normal"));
    moveMouseTo(item);
    QCOMPARE(color(), colour("listitem-background", "hovered"));
    QTest::mousePress(window(), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(color(), colour("listitem-background", "pressed"));
    QTest::mouseRelease(window(), Qt::LeftButton, {}, QPoint(20, 20));
    moveMouseAway();
    item->setProperty("isCurrentItem", true);
    for (const QString &mode : {u"dark"_s, u"highcontrast"_s}) {
        application()->setThemeMode(mode);
        QCOMPARE(color(), colour("listitem-background", "checked"));
    }
}

void tst_Lists::sessionArrow_data()
{
    QTest::addColumn<bool>("expanded");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<QString>("icon");
    QTest::newRow("expanded") << true << false << u"chevron-down-bold"_s;
    QTest::newRow("collapsed") << false << false << u"chevron-right-bold"_s;
    QTest::newRow("collapsed, mirrored") << false << true << u"chevron-left-bold"_s;
}

void tst_Lists::sessionArrow()
{
    QFETCH(const bool, expanded);
    QFETCH(const bool, mirrored);
    QFETCH(const QString, icon);
    QVERIFY(show("WSessionDelegate { width: 200; sessionName: 'A'; expanded: " + QByteArray(expanded ? "true" : "false")
                 + "; LayoutMirroring.enabled: " + (mirrored ? "true" : "false")
                 + "; LayoutMirroring.childrenInherit: true }"));
    const QQuickItem *image = nullptr;
    for (const QQuickItem *child : root()->childItems()) {
        if (child->inherits("QQuickImage"))
            image = child;
    }
    QVERIFY(image);
    QCOMPARE(image->property("svgName").toString(), icon);
    QCOMPARE(image->x(), mirrored ? 200.0 - 12 - 16 : 12.0);
}

void tst_Lists::rowAccessibility()
{
    QVERIFY(show(Sessions + "}"));
    QTRY_VERIFY(row(1));
    QAccessible::setActive(true);
    QAccessibleInterface *head = QAccessible::queryAccessibleInterface(row(0));
    QCOMPARE(head->role(), QAccessible::Button);
    QCOMPARE(head->text(QAccessible::Name), u"A"_s);
    QVERIFY(head->state().checkable);
    QVERIFY(head->state().checked);
    head->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!head->state().checked);
    QCOMPARE(rows().first(2), QStringList({u"[A]"_s, u"[B]"_s}));

    QTRY_COMPARE(row(2)->property("text").toString(), u"Bob"_s);
    QAccessibleInterface *item = QAccessible::queryAccessibleInterface(row(2));
    QCOMPARE(item->role(), QAccessible::ListItem);
    QCOMPARE(item->text(QAccessible::Name), u"Bob"_s);
    QVERIFY(item->state().selectable);
    QVERIFY(!item->state().selected);
    QSignalSpy triggered(row(2), SIGNAL(triggered()));
    item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(triggered.count(), 1);
    QVERIFY(item->state().selected);
}

LUMAKIT_TEST_MAIN(tst_Lists)
#include "tst_lists.moc"
