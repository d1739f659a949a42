#include <ComponentTest.h>

#include <QAccessible>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

enum Reason { Tab, Backtab, Click, Restore }; // as LKFocusManager.FocusReason

// Three buttons in a manager named "manager", between two buttons that no manager knows.
QByteArray threeButtons(const QByteArray &properties)
{
    return "Column { WButton { objectName: 'before' } LKFocusManager { objectName: 'manager'; width: 100; height: 100;"
           " activeFocusOnTab: true; focusableItems: [a, b, c]; "
        + properties
        + " WButton { id: a; objectName: 'a' } WButton { id: b; objectName: 'b' } WButton { id: c; objectName: 'c' } }"
          " WButton { objectName: 'after' } }";
}

struct Manager;

// An item of a screen: a manager, or a leaf.
struct Node
{
    QString name;
    Manager *parent = nullptr;
    std::unique_ptr<Manager> manager;
    bool enabled = true;
};

struct Manager
{
    Node *node = nullptr;
    Node dummy;
    std::vector<std::unique_ptr<Node>> items;
    bool isNavigating = false;
    bool forceNavigation = false;
    bool wrapAround = true;
    int index = 0;
    int circleStart = -1;
    Reason reason = Tab;

    Manager *parent() const { return node->parent; }
};

// What managers do, without windows and QML: the reference for random screens.
class Screen
{
public:
    explicit Screen(QRandomGenerator &random)
        : m_random(random)
        , m_root(makeManager(nullptr, 0))
    {
    }

    QByteArray qml() const { return qml(*m_root); }
    const std::vector<Manager *> &managers() const { return m_managers; }
    const std::vector<Node *> &leaves() const { return m_leaves; }
    const Node *focused() const { return m_focused; }

    void start() { focus(m_root.get()); }

    void press(Qt::Key key)
    {
        for (Manager *manager = scopeOf(m_focused); manager; manager = manager->parent()) {
            if (key == Qt::Key_Tab && manager->isNavigating)
                return move(*manager, Tab);
            if (key == Qt::Key_Backtab && manager->isNavigating)
                return move(*manager, Backtab);
            if (key == Qt::Key_Return) {
                if (!manager->isNavigating)
                    startAt(*manager, -1, Tab);
                return;
            }
            if (key == Qt::Key_Escape && manager->isNavigating && !manager->forceNavigation) {
                manager->isNavigating = false;
                return focus(&manager->dummy);
            }
        }
    }

private:
    std::unique_ptr<Node> makeManager(Manager *parent, int depth)
    {
        auto node = std::make_unique<Node>();
        node->name = u"m%1"_s.arg(m_managers.size());
        node->parent = parent;
        node->manager = std::make_unique<Manager>();
        Manager *manager = node->manager.get();
        m_managers.push_back(manager);
        manager->node = node.get();
        manager->dummy.name = "dummy-of-"_L1 + node->name;
        manager->dummy.parent = manager;
        manager->forceNavigation = m_random.bounded(2) == 0;
        manager->wrapAround = m_random.bounded(2) == 0;
        for (int left = m_random.bounded(1, 5); left > 0; --left) {
            if (depth < 3 && m_random.bounded(3) == 0) {
                manager->items.push_back(makeManager(manager, depth + 1));
            } else {
                auto leaf = std::make_unique<Node>();
                leaf->name = u"i%1"_s.arg(m_leaves.size());
                leaf->parent = manager;
                leaf->enabled = m_random.bounded(2) == 0;
                m_leaves.push_back(leaf.get());
                manager->items.push_back(std::move(leaf));
            }
        }
        return node;
    }

    static QByteArray qml(const Node &node)
    {
        const QByteArray name = node.name.toLatin1();
        const auto text = [](bool value) { return value ? "true" : "false"; };
        const QByteArray start = " { id: " + name + "; objectName: '" + name + "'; width: 9; height: 9; ";
        if (!node.manager)
            return "Item" + start + "enabled: " + text(node.enabled) + " }\n";
        QByteArray children;
        QByteArrayList names;
        for (const auto &item : node.manager->items) {
            children += qml(*item);
            names << item->name.toLatin1();
        }
        return "LKFocusManager" + start + "forceNavigation: " + text(node.manager->forceNavigation) + "; wrapAround: "
            + text(node.manager->wrapAround) + "; focusableItems: [" + names.join(", ") + "]\n" + children + "}\n";
    }

    static Manager *scopeOf(const Node *node)
    {
        if (!node)
            return nullptr;
        return node->manager ? node->manager.get() : node->parent;
    }

    static bool isInside(const Node *node, const Manager *manager)
    {
        for (const Manager *scope = scopeOf(node); scope; scope = scope->parent()) {
            if (scope == manager)
                return true;
        }
        return false;
    }

    void focus(Node *node)
    {
        const Node *before = std::exchange(m_focused, node);
        for (Manager *manager : m_managers) {
            if (isInside(before, manager) && !isInside(node, manager)) {
                manager->isNavigating = false;
                manager->reason = Tab;
            }
        }
        for (Manager *manager : m_managers) {
            if (isInside(node, manager) && !isInside(before, manager))
                takeFocus(*manager);
        }
    }

    void takeFocus(Manager &manager)
    {
        if (manager.parent())
            pointTo(manager, manager.reason);
        if (!manager.forceNavigation)
            focus(manager.node);
        else if (manager.reason == Tab)
            startAt(manager, -1, Tab);
        else
            startAt(manager, int(manager.items.size()), Backtab);
    }

    static void pointTo(const Manager &manager, Reason reason)
    {
        Manager &parent = *manager.parent();
        const auto isIt = [&](const auto &item) { return item.get() == manager.node; };
        parent.index = int(std::ranges::find_if(parent.items, isIt) - parent.items.begin());
        parent.reason = reason;
        if (parent.parent()) {
            parent.parent()->isNavigating = true;
            pointTo(parent, reason);
        }
    }

    void startAt(Manager &manager, int index, Reason reason)
    {
        manager.index = index;
        move(manager, reason);
    }

    void move(Manager &manager, Reason reason)
    {
        const int step = reason == Tab ? 1 : -1;
        const int count = int(manager.items.size());
        manager.isNavigating = true;
        const bool begins = manager.circleStart < 0;
        for (;;) {
            const int next = manager.index + step;
            const bool leads = next < 0 || next >= count;
            if (leads && !manager.wrapAround) {
                handOver(manager, reason);
                break;
            }
            manager.index = leads ? (step > 0 ? 0 : count - 1) : next;
            if (manager.index == manager.circleStart)
                break;
            if (manager.circleStart < 0)
                manager.circleStart = manager.index;
            if (manager.items[size_t(manager.index)]->enabled) {
                give(manager, reason);
                break;
            }
        }
        if (begins)
            manager.circleStart = -1;
    }

    void handOver(Manager &manager, Reason reason)
    {
        if (!manager.parent())
            return;
        manager.isNavigating = false;
        move(*manager.parent(), reason);
    }

    void give(Manager &manager, Reason reason)
    {
        Node *node = manager.items[size_t(manager.index)].get();
        manager.reason = reason;
        if (node->manager ? isInside(m_focused, node->manager.get()) : m_focused == node)
            return;
        if (node->manager)
            node->manager->reason = reason;
        focus(node);
    }

    QRandomGenerator &m_random;
    std::vector<Manager *> m_managers; // the outer before the inner
    std::vector<Node *> m_leaves;
    std::unique_ptr<Node> m_root;
    Node *m_focused = nullptr;
};

} // namespace

class tst_FocusManager : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void enums();
    void noItems_data();
    void noItems();
    void hiddenChild();
    void startsByKey_data();
    void startsByKey();
    void tabMovesOn();
    void skipsUnusable_data();
    void skipsUnusable();
    void nothingUsable();
    void escape();
    void forcedNavigation_data();
    void forcedNavigation();
    void takesFocusItself_data();
    void takesFocusItself();
    void handsOverWithoutWrapping();
    void handsOnWhatIsGivenToIt_data();
    void handsOnWhatIsGivenToIt();
    void onlyUnusableProxies_data();
    void onlyUnusableProxies();
    void comesBackWithoutItsOldItem();
    void randomScreens();
    void withoutEnclosingManager();
    void proxy();
    void nestedWalk();
    void galleryScreen();
    void loaders();
    void listView();
    void longListView();
    void losingFocus();
    void restore();
    void directFocus();
    void focusByClick();
    void mouseClick();
    void beforeHandling();
    void vanishingItem();
    void indexIsClamped();

private:
    QString focused() const;
    QVariant call(QObject *manager, const char *function) const;
    QStringList walk(Qt::Key key, int steps) const;
};

// The object name of the item that has the focus.
QString tst_FocusManager::focused() const
{
    const QQuickItem *item = window()->activeFocusItem();
    return item ? item->objectName() : QString();
}

QVariant tst_FocusManager::call(QObject *manager, const char *function) const
{
    QVariant result;
    const QMetaObject *meta = manager->metaObject();
    const int index = meta->indexOfMethod(QByteArray(function) + "()");
    if (index < 0) {
        qCritical() << "no function" << function;
        return result;
    }
    const QMetaMethod method = meta->method(index);
    if (method.returnMetaType() == QMetaType::fromType<int>()) {
        int value = 0;
        method.invoke(manager, qReturnArg(value));
        return value;
    }
    if (method.returnMetaType() == QMetaType::fromType<bool>()) {
        bool value = false;
        method.invoke(manager, qReturnArg(value));
        return value;
    }
    if (method.returnMetaType() == QMetaType::fromType<QVariant>())
        method.invoke(manager, qReturnArg(result));
    else
        method.invoke(manager);
    return result;
}

QStringList tst_FocusManager::walk(Qt::Key key, int steps) const
{
    QStringList names;
    for (int i = 0; i < steps; ++i) {
        press(key);
        names << focused();
    }
    return names;
}

void tst_FocusManager::defaults()
{
    QVERIFY(show("Item { LKFocusManager { objectName: 'manager' } }"));
    auto *manager = find(u"manager"_s);
    QCOMPARE(manager->property("isNavigating").toBool(), false);
    QCOMPARE(manager->property("focusableItems").value<QVariantList>(), QVariantList());
    QCOMPARE(manager->property("wrapAround").toBool(), true);
    QCOMPARE(manager->property("forceNavigation").toBool(), false);
    QCOMPARE(manager->property("focusReason").toInt(), int(Tab));
    QCOMPARE(manager->property("currentFocusedIndex").toInt(), 0);
    QCOMPARE(call(manager, "getCurrentFocusedIndex"), -1);
    QCOMPARE(call(manager, "isManagingListView"), false);
    QCOMPARE(call(manager, "count"), 0);
    QVERIFY(!call(manager, "getActiveFocusedItem").isValid());
}

void tst_FocusManager::enums()
{
    auto *item = show("Item { property var values: [LKFocusManager.FocusReason.Tab, LKFocusManager.FocusReason.Backtab,"
                      " LKFocusManager.FocusReason.Click, LKFocusManager.FocusReason.Restore] }");
    QVERIFY(item);
    QCOMPARE(item->property("values").value<QVariantList>(), (QVariantList{0, 1, 2, 3}));
}

void tst_FocusManager::noItems_data()
{
    QTest::addColumn<QByteArray>("items");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("undefined") << QByteArray("undefined");
    QTest::newRow("empty") << QByteArray("[]");
    QTest::newRow("an item that is null") << QByteArray("[null]");
}

void tst_FocusManager::noItems()
{
    QFETCH(const QByteArray, items);
    QVERIFY(show("Item { LKFocusManager { objectName: 'manager'; activeFocusOnTab: true; focusableItems: " + items
                 + "} WButton { objectName: 'after' } }"));
    auto *manager = find(u"manager"_s);
    QMetaObject::invokeMethod(manager, "forceActiveFocus");
    press(Qt::Key_Space);
    QVERIFY(manager->hasActiveFocus());
    QVERIFY(!call(manager, "getActiveFocusedItem").isValid());
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab);
    manager->setProperty("wrapAround", false);
    press(Qt::Key_Tab);
    press(Qt::Key_Escape);
    find(u"after"_s)->forceActiveFocus(Qt::TabFocusReason);
    QVERIFY(!manager->hasActiveFocus());
    manager->setProperty("forceNavigation", true);
    QMetaObject::invokeMethod(manager, "forceActiveFocus");
    QVERIFY(!call(manager, "getActiveFocusedItem").isValid());
}

void tst_FocusManager::hiddenChild()
{
    QVERIFY(show("Item { LKFocusManager { objectName: 'manager'; Accessible.name: 'Meeting' } }"));
    auto *dummy = find(u"dummy-of-manager"_s);
    QVERIFY(dummy);
    QCOMPARE(dummy->size(), QSizeF(0, 0));
    auto *attached = dummy->findChild<QObject *>(Qt::FindDirectChildrenOnly); // the Accessible of the item
    QVERIFY(attached);
    QCOMPARE(attached->property("ignored").toBool(), true);
    QCOMPARE(attached->property("focusable").toBool(), false);
    QCOMPARE(attached->property("role").toInt(), int(QAccessible::NoRole));
    QCOMPARE(attached->property("name").toString(), u"Meeting"_s);
}

void tst_FocusManager::startsByKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("focus");
    QTest::newRow("enter") << int(Qt::Key_Enter) << u"a"_s;
    QTest::newRow("return") << int(Qt::Key_Return) << u"a"_s;
    QTest::newRow("space") << int(Qt::Key_Space) << u"a"_s;
    QTest::newRow("another key") << int(Qt::Key_X) << u"manager"_s;
    QTest::newRow("escape") << int(Qt::Key_Escape) << u"manager"_s;
}

void tst_FocusManager::startsByKey()
{
    QFETCH(const int, key);
    QFETCH(const QString, focus);
    QVERIFY(show(threeButtons("")));
    auto *manager = find(u"manager"_s);
    manager->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(focused(), u"manager"_s);
    QCOMPARE(manager->property("isNavigating").toBool(), false);
    press(Qt::Key(key));
    QCOMPARE(focused(), focus);
    QCOMPARE(manager->property("isNavigating").toBool(), focus == u"a"_s);
}

void tst_FocusManager::tabMovesOn()
{
    QVERIFY(show(threeButtons("")));
    auto *manager = find(u"manager"_s);
    manager->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(walk(Qt::Key_Tab, 4), QStringList({u"b"_s, u"c"_s, u"a"_s, u"b"_s}));
    QCOMPARE(walk(Qt::Key_Backtab, 4), QStringList({u"a"_s, u"c"_s, u"b"_s, u"a"_s}));
    QCOMPARE(call(manager, "getCurrentFocusedIndex"), 0);
    QCOMPARE(call(manager, "getActiveFocusedItem").value<QObject *>(), find(u"a"_s));
    QCOMPARE(manager->property("focusReason").toInt(), int(Backtab));
}

void tst_FocusManager::skipsUnusable_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::newRow("disabled") << QByteArray("enabled");
    QTest::newRow("invisible") << QByteArray("visible");
}

void tst_FocusManager::skipsUnusable()
{
    QFETCH(const QByteArray, property);
    QVERIFY(show(threeButtons("")));
    find(u"b"_s)->setProperty(property, false);
    find(u"manager"_s)->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(walk(Qt::Key_Tab, 2), QStringList({u"c"_s, u"a"_s}));
    QCOMPARE(walk(Qt::Key_Backtab, 2), QStringList({u"c"_s, u"a"_s}));
}

void tst_FocusManager::nothingUsable()
{
    QVERIFY(show(threeButtons("")));
    auto *manager = find(u"manager"_s);
    for (const auto &name : {u"a"_s, u"b"_s, u"c"_s})
        find(name)->setEnabled(false);
    manager->forceActiveFocus(Qt::TabFocusReason);
    for (const char *function : {"focusNext", "focusPrevious", "startNavigation"}) {
        call(manager, function);
        QCOMPARE(focused(), u"manager"_s);
    }
    manager->setProperty("focusableItems", QVariantList());
    for (const char *function : {"focusNext", "focusPrevious"}) {
        call(manager, function);
        QCOMPARE(focused(), u"manager"_s);
    }
}

void tst_FocusManager::escape()
{
    QVERIFY(show(threeButtons("")));
    auto *manager = find(u"manager"_s);
    manager->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    QCOMPARE(focused(), u"b"_s);
    press(Qt::Key_Escape);
    QCOMPARE(focused(), u"dummy-of-manager"_s);
    QCOMPARE(manager->property("isNavigating").toBool(), false);
    QVERIFY(manager->hasActiveFocus());
    QVERIFY(!call(manager, "getActiveFocusedItem").isValid());
    press(Qt::Key_Return); // anew from the first
    QCOMPARE(focused(), u"a"_s);
}

void tst_FocusManager::forcedNavigation_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("focus");
    QTest::newRow("tab") << int(Tab) << u"a"_s;
    QTest::newRow("backtab") << int(Backtab) << u"c"_s;
    QTest::newRow("click") << int(Click) << u"b"_s;
}

void tst_FocusManager::forcedNavigation()
{
    QFETCH(const int, reason);
    QFETCH(const QString, focus);
    QVERIFY(show(threeButtons("forceNavigation: true; currentFocusedIndex: 1;")));
    auto *manager = find(u"manager"_s);
    manager->setProperty("focusReason", reason);
    manager->forceActiveFocus();
    QCOMPARE(focused(), focus);
    QCOMPARE(manager->property("isNavigating").toBool(), true);
    press(Qt::Key_Escape);
    QCOMPARE(focused(), focus);
    QCOMPARE(manager->property("isNavigating").toBool(), true);
}

void tst_FocusManager::takesFocusItself_data()
{
    QTest::addColumn<int>("reason");
    QTest::newRow("tab") << int(Tab);
    QTest::newRow("backtab") << int(Backtab);
    QTest::newRow("click") << int(Click);
    QTest::newRow("restore") << int(Restore);
}

// Also where one of its items had the focus before.
void tst_FocusManager::takesFocusItself()
{
    QFETCH(const int, reason);
    QVERIFY(show(threeButtons("")));
    auto *manager = find(u"manager"_s);
    manager->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(focused(), u"a"_s);
    find(u"before"_s)->forceActiveFocus();
    QCOMPARE(manager->property("isNavigating").toBool(), false);
    manager->setProperty("focusReason", reason);
    manager->forceActiveFocus();
    QCOMPARE(focused(), u"manager"_s);
    QCOMPARE(manager->property("isNavigating").toBool(), false);
}

void tst_FocusManager::handsOverWithoutWrapping()
{
    QVERIFY(
        show("LKFocusManager { objectName: 'outer'; forceNavigation: true; focusableItems: [inner, last]; width: 9;"
             " height: 9; LKFocusManager { id: inner; objectName: 'inner'; wrapAround: false; focusableItems: [a, b];"
             " WButton { id: a; objectName: 'a' } WButton { id: b; objectName: 'b' } }"
             " WButton { id: last; objectName: 'last' } }"));
    auto *inner = find(u"inner"_s);
    root()->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(focused(), u"inner"_s);
    press(Qt::Key_Return);
    QCOMPARE(focused(), u"a"_s);
    press(Qt::Key_Tab);
    QCOMPARE(focused(), u"b"_s);
    press(Qt::Key_Tab);
    QCOMPARE(focused(), u"last"_s);
    QCOMPARE(inner->property("isNavigating").toBool(), false);
    QCOMPARE(call(root(), "getCurrentFocusedIndex"), 1);
    press(Qt::Key_Backtab);
    QCOMPARE(focused(), u"inner"_s);
    QCOMPARE(inner->property("focusReason").toInt(), int(Backtab));
}

void tst_FocusManager::handsOnWhatIsGivenToIt_data()
{
    QTest::addColumn<QByteArray>("inner");
    QTest::newRow("a proxy of a disabled item behind the last usable one")
        << QByteArray("focusableItems: [a, proxy]; WButton { id: a; objectName: 'a' }"
                      " LKFocusManagerProxy { id: proxy; target: off; WButton { id: off; enabled: false } }");
    QTest::newRow("two of them in a manager")
        << QByteArray("focusableItems: [a, deep]; WButton { id: a; objectName: 'a' }"
                      " LKFocusManager { id: deep; forceNavigation: true; wrapAround: false;"
                      "  focusableItems: [proxy, other];"
                      "  LKFocusManagerProxy { id: proxy; target: off; WButton { id: off; enabled: false } }"
                      "  LKFocusManagerProxy { id: other; target: hidden; WButton { id: hidden; visible: false } } }");
}

// A manager that gets the focus and has nothing to give it to hands it on at once, past all managers around it.
void tst_FocusManager::handsOnWhatIsGivenToIt()
{
    QFETCH(const QByteArray, inner);
    QVERIFY(show("LKFocusManager { objectName: 'outer'; focusableItems: [first, middle, last]; width: 9; height: 9;"
                 " WButton { id: first; objectName: 'first' }"
                 " LKFocusManager { id: middle; forceNavigation: true; wrapAround: false; "
                 + inner + " } WButton { id: last; objectName: 'last' } }"));
    root()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(walk(Qt::Key_Tab, 4), QStringList({u"a"_s, u"last"_s, u"first"_s, u"a"_s}));
    QCOMPARE(walk(Qt::Key_Backtab, 4), QStringList({u"first"_s, u"last"_s, u"a"_s, u"first"_s}));
}

void tst_FocusManager::onlyUnusableProxies_data()
{
    QTest::addColumn<bool>("wrapAround");
    QTest::newRow("around") << true;
    QTest::newRow("from end to end") << false;
}

// Each hands on to the other, which ends after one circle.
void tst_FocusManager::onlyUnusableProxies()
{
    QFETCH(const bool, wrapAround);
    QVERIFY(
        show("LKFocusManager { objectName: 'outer'; focusableItems: [one, two]; width: 9; height: 9;"
             " LKFocusManagerProxy { id: one; objectName: 'one'; target: a; WButton { id: a; enabled: false } }"
             " LKFocusManagerProxy { id: two; objectName: 'two'; target: b; WButton { id: b; enabled: false } } }"));
    root()->setProperty("wrapAround", wrapAround);
    root()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(focused(), u"two"_s);
    QCOMPARE(root()->property("isNavigating").toBool(), true);
    QCOMPARE(find(u"two"_s)->property("isNavigating").toBool(), false);
    press(Qt::Key_Tab);
    QCOMPARE(root()->hasActiveFocus(), true);
    press(Qt::Key_Escape);
    QCOMPARE(focused(), u"dummy-of-outer"_s);
}

// Also when it was left by a step over items that cannot be used.
void tst_FocusManager::comesBackWithoutItsOldItem()
{
    QVERIFY(show("LKFocusManager { objectName: 'outer'; focusableItems: [first, inner]; width: 9; height: 9;"
                 " WButton { id: first; objectName: 'first' }"
                 " LKFocusManager { id: inner; objectName: 'inner'; wrapAround: false; focusableItems: [a, b];"
                 "  WButton { id: a; objectName: 'a' } WButton { id: b; objectName: 'b'; enabled: false } } }"));
    root()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    QCOMPARE(focused(), u"a"_s);
    QCOMPARE(walk(Qt::Key_Tab, 2), QStringList({u"first"_s, u"inner"_s}));
    QCOMPARE(find(u"inner"_s)->property("isNavigating").toBool(), false);
}

// LUMAKIT_SEED repeats one.
void tst_FocusManager::randomScreens()
{
    bool given = false;
    const uint environmentSeed = qEnvironmentVariable("LUMAKIT_SEED").toUInt(&given);
    const uint firstSeed = given ? environmentSeed : QRandomGenerator::global()->generate();
    qInfo("LUMAKIT_SEED=%u", firstSeed);
    for (uint seed = firstSeed; seed < firstSeed + 20; ++seed) {
        QRandomGenerator random(seed);
        Screen screen(random);
        QVERIFY(show("Item { " + screen.qml() + " }"));
        find(u"m0"_s)->forceActiveFocus(Qt::TabFocusReason);
        screen.start();
        QStringList steps{u"LUMAKIT_SEED=%1"_s.arg(seed), QString::fromLatin1(screen.qml())};
        for (int step = 0; step < 30; ++step) {
            QStringList expected{screen.focused()->name};
            QStringList actual{focused()};
            for (const Manager *manager : screen.managers()) {
                const QString line = manager->node->name + u" %1 %2 %3"_s;
                const QQuickItem *item = find(manager->node->name);
                expected << line.arg(manager->isNavigating).arg(manager->index).arg(manager->reason);
                actual << line.arg(item->property("isNavigating").toBool())
                              .arg(item->property("currentFocusedIndex").toInt())
                              .arg(item->property("focusReason").toInt());
            }
            QVERIFY2(actual == expected,
                     qPrintable(steps.join(u'\n') + "\nis "_L1 + actual.join(u", "_s) + "\nnot "_L1
                                + expected.join(u", "_s)));

            Node *leaf =
                screen.leaves().empty() ? nullptr : screen.leaves()[random.bounded(quint32(screen.leaves().size()))];
            if (leaf && leaf != screen.focused() && random.bounded(4) == 0) {
                leaf->enabled = !leaf->enabled;
                find(leaf->name)->setEnabled(leaf->enabled);
                steps << leaf->name + " switched"_L1;
            }
            constexpr Qt::Key Keys[]{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Escape};
            const Qt::Key key = Keys[random.bounded(int(std::size(Keys)))];
            press(key);
            screen.press(key);
            steps << QVariant::fromValue(key).toString();
        }
    }
}

void tst_FocusManager::withoutEnclosingManager()
{
    QVERIFY(show(threeButtons("wrapAround: false;")));
    auto *manager = find(u"manager"_s);
    manager->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(walk(Qt::Key_Tab, 3), QStringList({u"b"_s, u"c"_s, u"c"_s}));
    QCOMPARE(manager->property("isNavigating").toBool(), true);
    QCOMPARE(walk(Qt::Key_Backtab, 3), QStringList({u"b"_s, u"a"_s, u"a"_s}));
}

void tst_FocusManager::proxy()
{
    QVERIFY(show("LKFocusManager { objectName: 'outer'; focusableItems: [first, proxy]; width: 9; height: 9;"
                 " WButton { id: first; objectName: 'first' }"
                 " LKFocusManagerProxy { id: proxy; objectName: 'proxy'; target: field;"
                 " WButton { id: field; objectName: 'field'; width: 70; height: 30 } } }"));
    auto *proxy = find(u"proxy"_s);
    QCOMPARE(proxy->size(), QSizeF(70, 30));
    QCOMPARE(proxy->property("forceNavigation").toBool(), true);
    QCOMPARE(proxy->property("wrapAround").toBool(), false);
    QCOMPARE(call(proxy, "count"), 1);
    root()->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(walk(Qt::Key_Tab, 3), QStringList({u"field"_s, u"first"_s, u"field"_s}));
    QCOMPARE(walk(Qt::Key_Backtab, 2), QStringList({u"first"_s, u"field"_s}));
    press(Qt::Key_Escape); // not the proxy's
    QCOMPARE(focused(), u"dummy-of-outer"_s);
    QCOMPARE(root()->property("isNavigating").toBool(), false);
}

// A chain of managers is walked from end to end and back by Tab and Backtab alone.
void tst_FocusManager::nestedWalk()
{
    QVERIFY(
        show("LKFocusManager { objectName: 'top'; forceNavigation: true; focusableItems: [one, two, three]; width: 9;"
             " height: 9; WButton { id: one; objectName: '1' }"
             " LKFocusManager { id: two; forceNavigation: true; wrapAround: false; focusableItems: [x, y];"
             "  LKFocusManager { id: x; forceNavigation: true; wrapAround: false; focusableItems: [p, q];"
             "   WButton { id: p; objectName: '2' } WButton { id: q; objectName: '3' } }"
             "  WButton { id: y; objectName: '4' } }"
             " WButton { id: three; objectName: '5' } }"));
    root()->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(focused(), u"1"_s);
    QCOMPARE(walk(Qt::Key_Tab, 6), QStringList({u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"1"_s, u"2"_s}));
    QCOMPARE(walk(Qt::Key_Backtab, 6), QStringList({u"1"_s, u"5"_s, u"4"_s, u"3"_s, u"2"_s, u"1"_s}));
}

// The screen of the gallery, from end to end and back.
void tst_FocusManager::galleryScreen()
{
    QVERIFY(show("LKFocusManagerSample { }"));
    find(u"screen"_s)->forceActiveFocus(Qt::TabFocusReason);
    const auto name = [this] {
        const QVariant text = window()->activeFocusItem()->property("text");
        return text.toString().isEmpty() ? window()->activeFocusItem()->property("placeholderText").toString()
                                         : text.toString();
    };
    const QStringList forth{u"Mute"_s,      u"Share"_s,   u"Ada"_s,   u"Bertrand"_s,
                            u"Christine"_s, u"Message"_s, u"Leave"_s, u"Mute"_s};
    QStringList walked{name()};
    for (qsizetype i = 1; i < forth.size(); ++i) {
        press(Qt::Key_Tab);
        walked << name();
    }
    QCOMPARE(walked, forth);

    QStringList back;
    for (qsizetype i = 1; i < forth.size(); ++i) {
        press(Qt::Key_Backtab);
        back.prepend(name());
    }
    QCOMPARE(back, forth.first(forth.size() - 1));
}

void tst_FocusManager::loaders()
{
    QVERIFY(show("LKFocusManager { forceNavigation: true; focusableItems: [full, empty, last]; width: 9; height: 9;"
                 " Loader { id: full; sourceComponent: WButton { objectName: 'loaded' } }"
                 " Loader { id: empty; objectName: 'empty'; active: false;"
                 " sourceComponent: WButton { objectName: 'late' } }"
                 " WButton { id: last; objectName: 'last' } }"));
    root()->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(focused(), u"loaded"_s);
    QCOMPARE(call(root(), "getActiveFocusedItem").value<QObject *>()->objectName(), u"loaded"_s);
    QCOMPARE(walk(Qt::Key_Tab, 2), QStringList({u"last"_s, u"loaded"_s}));
    find<QObject>(u"empty"_s)->setProperty("active", true);
    QCOMPARE(walk(Qt::Key_Tab, 2), QStringList({u"late"_s, u"last"_s}));
}

void tst_FocusManager::listView()
{
    QVERIFY(show("LKFocusManager { forceNavigation: true; focusableItems: list; width: 200; height: 200;"
                 " ListView { id: list; anchors.fill: parent; model: 3;"
                 " delegate: WButton { required property int index; objectName: 'row' + index } } }"));
    QCOMPARE(call(root(), "isManagingListView"), true);
    QCOMPARE(call(root(), "count"), 3);
    root()->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(focused(), u"row0"_s);
    QCOMPARE(walk(Qt::Key_Tab, 3), QStringList({u"row1"_s, u"row2"_s, u"row0"_s}));
    QCOMPARE(walk(Qt::Key_Backtab, 2), QStringList({u"row2"_s, u"row1"_s}));
}

// The rows that are out of sight are reached as well: the list scrolls.
void tst_FocusManager::longListView()
{
    QVERIFY(show("LKFocusManager { forceNavigation: true; focusableItems: list; width: 200; height: 100;"
                 " ListView { id: list; objectName: 'list'; anchors.fill: parent; model: 50; cacheBuffer: 0;"
                 " delegate: WButton { required property int index; objectName: 'row' + index } } }"));
    root()->forceActiveFocus(Qt::TabFocusReason);
    QStringList expected;
    for (int i = 1; i < 50; ++i)
        expected << u"row%1"_s.arg(i);
    QCOMPARE(walk(Qt::Key_Tab, 49), expected);
    auto *list = find(u"list"_s);
    QTRY_COMPARE(list->property("contentY").toReal() + list->height(), list->property("contentHeight").toReal());
    press(Qt::Key_Tab);
    QCOMPARE(focused(), u"row0"_s);
}

void tst_FocusManager::losingFocus()
{
    QVERIFY(show(threeButtons("forceNavigation: true;")));
    auto *manager = find(u"manager"_s);
    manager->setProperty("focusReason", int(Backtab));
    manager->forceActiveFocus();
    find(u"after"_s)->forceActiveFocus();
    QCOMPARE(manager->property("isNavigating").toBool(), false);
    QCOMPARE(manager->property("focusReason").toInt(), int(Tab));
}

// What takes the focus for a while gives it back to the same item, which is still the current one.
void tst_FocusManager::restore()
{
    QVERIFY(show(threeButtons("forceNavigation: true;")));
    auto *manager = find(u"manager"_s);
    manager->forceActiveFocus();
    press(Qt::Key_Tab);
    QCOMPARE(focused(), u"b"_s);
    call(manager, "setFocusReasonToRestore");
    find(u"after"_s)->forceActiveFocus();
    QCOMPARE(manager->property("isNavigating").toBool(), true);
    QCOMPARE(manager->property("focusReason").toInt(), int(Restore));
    manager->forceActiveFocus();
    QCOMPARE(focused(), u"b"_s);
    QCOMPARE(manager->property("focusReason").toInt(), int(Tab));
    press(Qt::Key_Tab);
    QCOMPARE(focused(), u"c"_s);
}

void tst_FocusManager::directFocus()
{
    QVERIFY(show("LKFocusManager { objectName: 'outer'; focusableItems: [first, inner]; width: 9; height: 9;"
                 " WButton { id: first } Item { id: inner; LKFocusManager { objectName: 'inner'; focusableItems: [a];"
                 " WButton { id: a; objectName: 'a' } } } }"));
    auto *inner = find(u"inner"_s);
    QMetaObject::invokeMethod(inner, "setDirectFocus", int(Click));
    QCOMPARE(inner->property("focusReason").toInt(), int(Click));
    QCOMPARE(root()->property("focusReason").toInt(), int(Click));
    QCOMPARE(root()->property("isNavigating").toBool(), true);
    QCOMPARE(root()->property("currentFocusedIndex").toInt(), 1); // the managed item that holds the manager

    call(inner, "setFocusReasonToRestore");
    QCOMPARE(inner->property("focusReason").toInt(), int(Restore));
    QCOMPARE(root()->property("focusReason").toInt(), int(Restore));
}

void tst_FocusManager::focusByClick()
{
    QVERIFY(show("LKFocusManager { focusableItems: [first, inner]; width: 9; height: 9;"
                 " WButton { id: first } LKFocusManager { id: inner; objectName: 'inner'; focusableItems: [a];"
                 " WButton { id: a; objectName: 'a' } } }"));
    auto *inner = find(u"inner"_s);
    call(inner, "focusByClick");
    QCOMPARE(focused(), u"inner"_s);
    QCOMPARE(call(root(), "getCurrentFocusedIndex"), 1);
    QCOMPARE(root()->property("isNavigating").toBool(), true);
    QCOMPARE(inner->property("isNavigating").toBool(), false);
    press(Qt::Key_Return);
    QCOMPARE(focused(), u"a"_s);
}

// A click on a managed item is as good as the keys.
void tst_FocusManager::mouseClick()
{
    QVERIFY(
        show("LKFocusManager { objectName: 'manager'; focusableItems: [a, b]; width: 300; height: 100;"
             " Row { WButton { id: a; objectName: 'a'; text: 'A' } WButton { id: b; objectName: 'b'; text: 'B' } } }"));
    click(find(u"b"_s));
    QCOMPARE(focused(), u"b"_s);
    QCOMPARE(root()->property("isNavigating").toBool(), true);
    QCOMPARE(call(root(), "getCurrentFocusedIndex"), 1);
    press(Qt::Key_Tab);
    QCOMPARE(focused(), u"a"_s);
}

void tst_FocusManager::beforeHandling()
{
    QVERIFY(show("LKFocusManager { focusableItems: [first, inner]; width: 9; height: 9;"
                 " WButton { id: first } LKFocusManager { id: inner; objectName: 'inner'; forceNavigation: true;"
                 " property int calls: 0; beforeHandlingChangeOfFocus: () => { ++calls; return true; }"
                 " focusableItems: [a]; WButton { id: a; objectName: 'a' } } }"));
    auto *inner = find(u"inner"_s);
    inner->forceActiveFocus();
    QCOMPARE(inner->property("calls").toInt(), 1);
    QCOMPARE(inner->property("isNavigating").toBool(), false); // its own handling is skipped
    QCOMPARE(root()->property("currentFocusedIndex").toInt(), 1); // the chain of managers is not
}

void tst_FocusManager::vanishingItem()
{
    QVERIFY(show(threeButtons("forceNavigation: true;")));
    auto *manager = find(u"manager"_s);
    manager->forceActiveFocus();
    press(Qt::Key_Tab);
    QCOMPARE(focused(), u"b"_s);
    find(u"b"_s)->setEnabled(false);
    QVERIFY(!call(manager, "getActiveFocusedItem").isValid());
    call(manager, "focusNext");
    QCOMPARE(focused(), u"c"_s);
    delete find(u"a"_s);
    call(manager, "focusNext");
    QCOMPARE(focused(), u"c"_s); // the only one left
}

void tst_FocusManager::indexIsClamped()
{
    QVERIFY(show(threeButtons("")));
    auto *manager = find(u"manager"_s);
    manager->forceActiveFocus();
    manager->setProperty("currentFocusedIndex", -7);
    call(manager, "focusNext");
    QCOMPARE(focused(), u"a"_s);
    manager->setProperty("currentFocusedIndex", 99);
    call(manager, "focusPrevious");
    QCOMPARE(focused(), u"c"_s);
}

LUMAKIT_TEST_MAIN(tst_FocusManager)
#include "tst_focusmanager.moc"
