#include <ComponentTest.h>
#include <WQmlEngine.h>

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QMetaEnum>
#include <QQmlComponent>
#include <QQmlProperty>

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

using namespace Qt::StringLiterals;

namespace {

/// What a screen reader finds of a component: the first node of it, which is most often the only one.
struct Row
{
    const char *component;
    /// What sets the row apart from others of the component; empty for one as it comes.
    const char *variant = "";
    /// QML, in the component.
    const char *properties = "";
    /// NoRole for what is passed by.
    QAccessible::Role role = QAccessible::NoRole;
    /// The properties that the name comes from, the first that is set of them; empty for a node without a name.
    const char *names = "";
    /// All that are set.
    const char *states = "";
    /// What can be done with it, and the signal that follows.
    const char *action = "";

    QStringList nameSources() const { return QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts); }
    QString actionName() const { return QString::fromLatin1(action).section(u' ', 0, 0); }
    QByteArray signal() const { return QString::fromLatin1(action).section(u' ', 1).toLatin1(); }
    QByteArray title() const { return *variant ? QByteArray(component) + ", " + variant : QByteArray(component); }
};

// clang-format off: a row a line
constexpr Row Rows[] = {
    // buttons
    {"LKButtonBase", "", "", QAccessible::Button, "text", "focusable", "Press clicked()"},
    {"LKButtonBase", "checkable", "checkable: true", QAccessible::Button, "text", "checkable focusable",
     "Press toggled()"},
    {"LKPillButton", "", "", QAccessible::Button, "text", "focusable", "Press clicked()"},
    {"LKRoundButton", "", "", QAccessible::Button, "Accessible.name text", "focusable", "Press clicked()"},
    {"LKIconButton", "", "", QAccessible::Button, "Accessible.name text", "focusable", "Press clicked()"},
    {"LKIconButton", "checked", "checkable: true; checked: true", QAccessible::Button, "Accessible.name",
     "checkable checked focusable", "Press toggled()"},
    {"LKToolButton", "", "", QAccessible::Button, "Accessible.name text", "focusable", "Press clicked()"},
    {"LKHyperlinkButton", "", "", QAccessible::Link, "text", "focusable", "Press clicked()"},
    {"LKDualButton", "", "", QAccessible::Button, "leftAccessibleName", "focusable", "Press leftButton.clicked()"},
    {"LKDualIconButton", "", "", QAccessible::Button, "leftAccessibleName", "focusable", "Press leftButton.clicked()"},
    {"LKToggleButton", "", "", QAccessible::RadioButton, "leftAccessibleName", "checkable checked focusable"},
    {"LKToggleButton", "off", "rightButton.checked: true", QAccessible::RadioButton, "leftAccessibleName",
     "checkable focusable", "Press leftButton.toggled()"},
    {"LKBadgeButton", "", "", QAccessible::Button, "buttonText tooltip", "focusable", "Press triggered()"},
    {"WButton", "", "", QAccessible::Button, "text tooltip", "focusable", "Press triggered()"},
    {"WButton", "checkable", "checkable: true; checked: true", QAccessible::Button, "text tooltip",
     "checkable checked focusable", "Press toggled()"},
    {"WSvgButton", "", "", QAccessible::Button, "text tooltip", "focusable", "Press triggered()"},
    {"WSvgIconButton", "", "", QAccessible::Button, "text tooltip", "focusable", "Press triggered()"},
    {"WSvgSplitButton", "", "", QAccessible::Button, "leftButton.text leftButton.tooltip", "focusable",
     "Press leftClicked()"},
    {"WSvgSplitIconButton", "", "", QAccessible::Button, "leftButton.tooltip", "focusable", "Press leftClicked()"},
    {"WPillButton", "", "", QAccessible::Button, "text tooltip", "focusable", "Press triggered()"},
    {"WKeyButton", "", "", QAccessible::Button, "primary", "focusable", "Press triggered()"},
    {"WMessageBannerButton", "", "", QAccessible::Button, "text tooltip", "focusable", "Press triggered()"},
    {"WDialogButtonBox", "", "", QAccessible::Grouping, "Accessible.name"},
    {"WButtonsOverflowList", "", "model: ['Files']; visible: true", QAccessible::PopupMenu, "", "focused"},
    {"PeopleSummaryBricklet", "", "", QAccessible::Button, "text", "focusable selectable", "Press triggered()"},

    // selection controls
    {"LKCheckBox", "", "", QAccessible::CheckBox, "accessibleText text tooltip", "checkable focusable",
     "Press toggled()"},
    {"WCheckBox", "", "", QAccessible::CheckBox, "text tooltip", "checkable focusable", "Press toggled()"},
    {"WCheckBox", "partially", "tristate: true; checkState: Qt.PartiallyChecked", QAccessible::CheckBox, "text",
     "checkStateMixed checkable focusable", "Press checkStateChanged()"},
    {"LKRadioButton", "", "", QAccessible::RadioButton, "accessibleText text tooltip", "checkable focusable",
     "Press toggled()"},
    {"WSwitch", "", "", QAccessible::CheckBox, "text tooltip", "checkable focusable", "Press toggled()"},
    {"LKComboBox", "", "", QAccessible::ComboBox, "accessibleText tooltip displayText", "focusable",
     "Press popup.opened()"},
    {"WComboBox", "", "", QAccessible::ComboBox, "Accessible.name tooltip displayText", "focusable",
     "Press popup.opened()"},
    {"LKSlider", "", "", QAccessible::Slider, "accessibleText", "focusable", "Increase moved()"},
    {"WSlider", "", "", QAccessible::Slider, "Accessible.name", "focusable", "Increase moved()"},

    // text
    {"LKLabelBase", "", "", QAccessible::StaticText, "text", "focusable readOnly"},
    {"LKTextField", "", "", QAccessible::EditableText, "accessibleName placeholderText", "editable focusable"},
    // Qt tells no name of a password field: the name is its description, see values().
    {"LKTextField", "password", "isPasswordInput: true", QAccessible::EditableText, "",
     "editable focusable passwordEdit"},
    {"LKTextField", "password that is shown", "isPasswordInput: true; isPasswordVisible: true",
     QAccessible::EditableText, "accessibleName", "editable focusable"},
    {"LKTextFieldBase", "", "", QAccessible::EditableText, "placeholderText", "editable focusable"},
    {"LKTextInputField", "", "", QAccessible::EditableText, "accessibleName titleText placeholderText",
     "editable focusable"},
    {"LKTextArea", "", "", QAccessible::EditableText, "accessibleName placeholderText", "editable focusable multiLine"},
    {"LKTextAreaBase", "", "", QAccessible::EditableText, "placeholderText", "editable focusable multiLine"},
    {"LKShortcutsLabel", "", "", QAccessible::HotkeyField, "accessibleName labelText", "focusable",
     "Press isInEditModeChanged()"},
    {"WLabel", "", "", QAccessible::StaticText, "text toolTipText", "focusable readOnly"},
    {"WAccessibleLabel", "", "", QAccessible::StaticText, "text toolTipText", "focusable readOnly"},
    {"WText", "", "", QAccessible::StaticText, "text", "focusable readOnly"},
    {"WTextElide", "", "", QAccessible::StaticText, "text", "focusable readOnly"},
    {"WTextEdit", "", "", QAccessible::EditableText, "Accessible.name", "editable focusable multiLine"},
    {"WTextEdit", "read-only", "readOnly: true", QAccessible::StaticText, "text", "focusable multiLine readOnly"},
    {"WTextEditElide", "", "", QAccessible::StaticText, "originalText", "focusable readOnly"},
    {"WTextEditElideMultiline", "", "maximumWidth: 200", QAccessible::StaticText, "originalText",
     "focusable multiLine readOnly"},
    {"WTextEditLink", "", "markup: '<a href=\"terms\">Terms</a>'", QAccessible::Link, "markup",
     "focusable multiLine readOnly", "Press linkActivated(QString)"},
    {"WTextField", "", "", QAccessible::EditableText, "Accessible.name placeholderText", "editable focusable"},
    {"WTextField", "password", "echoMode: TextInput.Password", QAccessible::EditableText, "",
     "editable focusable passwordEdit"},
    {"WTextField", "read-only", "readOnly: true", QAccessible::EditableText, "placeholderText",
     "editable focusable readOnly"},
    {"WTextArea", "", "", QAccessible::EditableText, "Accessible.name placeholderText", "editable focusable multiLine"},
    {"WTextArea", "read-only", "readOnly: true", QAccessible::EditableText, "placeholderText",
     "editable focusable multiLine readOnly"},
    {"WTextInput", "", "", QAccessible::EditableText, "Accessible.name placeholderText", "editable focusable"},
    {"WLineEdit", "", "", QAccessible::EditableText, "placeholderText", "editable focusable"},
    {"WFlickableLineEdit", "", "", QAccessible::EditableText, "lineEdit.placeholderText", "editable focusable"},
    {"WFlickableTextEdit", "", "", QAccessible::EditableText, "accessibleText", "editable focusable multiLine"},
    {"WSearchField", "", "", QAccessible::EditableText, "searchFieldAccText serachFieldPlaceHolderText",
     "editable focusable searchEdit"},
    {"WHyperlink", "", "", QAccessible::Link, "text tooltip", "focusable", "Press triggered()"},

    // menus and popups
    {"LKMenu", "", "model: ['Copy']", QAccessible::PopupMenu, "Accessible.name"},
    {"LKMenuItem", "", "", QAccessible::MenuItem, "text", "focusable", "Press selectItem()"},
    {"LKMenuItem", "checked", "checkable: true; checked: true", QAccessible::MenuItem, "text",
     "checkable checked focusable", "Press selectItem()"},
    {"LKMenuSeparator", "", "", QAccessible::Separator},
    {"LKContextMenu", "", "Component.onCompleted: Qt.callLater(open)", QAccessible::PopupMenu, "title", "focused"},
    {"LKContextMenuItem", "", "", QAccessible::MenuItem, "text", "focusable", "Press triggered()"},
    {"WMenu", "", "Component.onCompleted: Qt.callLater(open)", QAccessible::PopupMenu, "title", "focused"},
    {"WMenuItem", "", "", QAccessible::MenuItem, "text", "focusable", "Press triggered()"},
    {"WMenuSeparator", "", "", QAccessible::Separator},
    {"WPopupList", "", "", QAccessible::List, "Accessible.name headerText"},
    {"WToolTip", "", "visible: true", QAccessible::ToolTip, "text"},
    {"WSystemToolTip", "", "", QAccessible::ToolTip, "text"},
    {"WCoachmark", "", "visible: true", QAccessible::ToolTip, "accessibleName titleText"},
    {"WFTEDialog", "", "", QAccessible::Dialog, "titleText"},

    // lists, tabs and scrolling
    {"LKTabBar", "", "", QAccessible::PageTabList, "Accessible.name"},
    {"LKTabItem", "", "", QAccessible::PageTab, "text tooltip", "checkable focusable selectable", "Press clicked()"},
    {"LKTabItem", "current", "checked: true", QAccessible::PageTab, "text",
     "checkable checked focusable selectable selected", "Press clicked()"},
    {"LKScrollBar", "", "size: 0.3", QAccessible::ScrollBar, "", "", "Increase positionChanged()"},
    {"LKScrollView", "", "width: 100; height: 100", QAccessible::Pane, "Accessible.name"},
    {"LKScrollView", "that scrolls", "contentHeight: 400; width: 100; height: 100", QAccessible::Pane,
     "Accessible.name", "focusable"},
    {"WListView", "", "listView.model: 2; listView.delegate: Item { height: 9 }", QAccessible::List,
     "Accessible.name", "focusable"},
    {"WGridView", "", "model: 2; delegate: Item { }", QAccessible::List, "Accessible.name", "focusable"},
    {"WExpandableListView", "", "model: ListModel { ListElement { session: 'Today'; text: 'Ada' } }",
     QAccessible::List, "Accessible.name", "focusable"},
    {"WExpandableListViewItem", "", "", QAccessible::ListItem, "Accessible.name sessionName", "focusable selectable",
     "Press triggered()"},
    {"WExpandableListViewItem", "chosen", "checked: true", QAccessible::ListItem, "sessionName",
     "focusable selectable selected", "Press triggered()"},
    {"WExpandableDelegate", "", "", QAccessible::ListItem, "text", "focusable selectable", "Press triggered()"},
    // A session that is expanded is told as one that is checked: QML has no state for it.
    {"WSessionDelegate", "", "expanded: true", QAccessible::Button, "sessionName", "checkable checked focusable",
     "Press toggled()"},
    {"WSessionDelegate", "collapsed", "expanded: false", QAccessible::Button, "sessionName", "checkable focusable",
     "Press toggled()"},
    {"WTabBar", "", "", QAccessible::PageTabList, "Accessible.name"},
    {"WTabButton", "", "", QAccessible::PageTab, "text tooltip", "checkable focusable selectable", "Press clicked()"},
    {"WTabButton", "current", "checked: true", QAccessible::PageTab, "text",
     "checkable checked focusable selectable selected", "Press clicked()"},
    {"DTabBar", "", "", QAccessible::PageTabList, "Accessible.name"},
    {"DTabButton", "", "", QAccessible::PageTab, "text tooltip", "checkable focusable selectable", "Press clicked()"},
    {"WPillTabBar", "", "model: ['All']", QAccessible::PageTabList, "Accessible.name"},
    {"DScrollBar", "", "size: 0.3", QAccessible::ScrollBar, "", "", "Increase positionChanged()"},
    {"WScrollHelper"},
    {"ListItemBackground"},
    {"LKKeyboardShortcutsGroupDelegate", "", "", QAccessible::Grouping, "title"},
    {"LKKeyboardShortcutsItemDelegate", "", "", QAccessible::ListItem, "title", "focusable selectable",
     "Press clicked()"},

    // images and icons: what has a meaning is given it as Accessible.name by whoever shows it
    {"LKSvgResource"},
    {"WImage"},
    {"WSvgImage"},
    {"WSvgIcon", "", "svgName: 'settings-bold'"},
    {"WSvgSequenceAnimated"},
    {"WSvgSpinner"},
    {"WSpinner"},
    {"WDynamicImage"},
    {"WDynamicAnimatedImage"},
    {"WGifLabel", "", "text: 'Recording'", QAccessible::StaticText, "text", "focusable readOnly"},
    {"WGifLabel", "without a text"},
    {"WCoverImage"},
    {"WAvatar", "", "", QAccessible::Graphic, "displayName"},
    {"WAvatar", "interactive", "allowInteractions: true", QAccessible::Button, "displayName", "focusable",
     "Press clicked()"},
    {"WSelfMessageAvatar", "", "", QAccessible::Graphic, "Accessible.name"},
    {"LKAvatarGroup", "", "", QAccessible::Graphic, "avatarOneId"},
    {"AvatarListStandard", "", "", QAccessible::List, "Accessible.name"},
    {"WCircularProgressBar", "", "", QAccessible::ProgressBar, "Accessible.name"},

    // banners, badges and tags
    {"LKAlertBanner", "", "", QAccessible::AlertMessage, "text subText"},
    {"LKAlertBanner", "interactive", "interactive: true", QAccessible::Button, "text subText", "focusable",
     "Press clicked()"},
    {"LKBanner", "", "", QAccessible::AlertMessage, "headerText subText"},
    {"LKBanner", "interactive", "interactive: true", QAccessible::Button, "headerText subText", "focusable",
     "Press clicked()"},
    {"LKBadge", "", "text: '3'", QAccessible::StaticText, "text", "focusable readOnly"},
    {"LKBadge", "a dot"},
    {"LKIndicatorBadge", "", "", QAccessible::Indicator, "Accessible.name"},
    {"LKTag", "", "", QAccessible::StaticText, "text", "focusable readOnly"},
    {"LKMeetingMarker"},
    {"LKFileItem", "", "", QAccessible::Button, "fileNameLabel", "focusable", "Press clicked()"},
    {"WTag", "", "", QAccessible::StaticText, "text tooltip", "focusable readOnly"},
    {"WTag", "interactive", "interactive: true", QAccessible::Button, "text tooltip", "focusable", "Press triggered()"},
    {"WEmptyState", "", "title: 'Nothing'", QAccessible::StaticText, "title", "focusable readOnly"},
    {"WNamedValue", "", "", QAccessible::StaticText, "name", "focusable readOnly"},

    // frames, shapes and effects
    {"WItem"},
    {"WRectangle"},
    {"WFrame"},
    {"WPane", "", "", QAccessible::Pane, "Accessible.name"},
    {"WSeparator", "", "", QAccessible::Separator},
    {"WGradientRectangle"},
    {"WGradientRectangleRoundCorner"},
    {"WDropShadow"},
    {"WDropShadowRect"},
    {"WFade"},
    {"WFadeStates"},
    {"WSplitView", "", "", QAccessible::Pane, "Accessible.name"},
    {"WResizeFrame"},
    {"WMoveWindowArea"},
    {"WCursorItem"},
    {"WShortcut"},

    // focus
    {"LKFocusManager", "", "", QAccessible::Grouping, "Accessible.name"},
    {"LKFocusManager", "that Tab comes to", "activeFocusOnTab: true", QAccessible::Grouping, "Accessible.name",
     "focusable"},
    {"LKFocusManagerProxy", "", "target: parent"},
};
// clang-format on

// A screen reader that runs is a platform that is active: what is made later asks for that, what is there is told.
void setScreenReaderRunning(bool running)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(running);
    QAccessible::setActive(running);
}

QString roleName(QAccessible::Role role)
{
    return QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
}

QString states(const QAccessible::State &state)
{
    QStringList names;
    const auto add = [&names](bool isSet, const char *name) {
        if (isSet)
            names << QString::fromLatin1(name);
    };
    add(state.busy, "busy");
    add(state.checkStateMixed, "checkStateMixed");
    add(state.checkable, "checkable");
    add(state.checked, "checked");
    add(state.disabled, "disabled");
    add(state.editable, "editable");
    add(state.focusable, "focusable");
    add(state.focused, "focused");
    add(state.invisible, "invisible");
    add(state.multiLine, "multiLine");
    add(state.passwordEdit, "passwordEdit");
    add(state.pressed, "pressed");
    add(state.readOnly, "readOnly");
    add(state.searchEdit, "searchEdit");
    add(state.selectable, "selectable");
    add(state.selected, "selected");
    return names.join(u' ');
}

QStringList actions(QAccessibleInterface *node)
{
    return node->actionInterface() ? node->actionInterface()->actionNames() : QStringList();
}

QString describe(QAccessibleInterface *node)
{
    const char *type = node->object() ? node->object()->metaObject()->className() : "";
    return u"%1 \"%2\" of %3"_s.arg(roleName(node->role()), node->text(QAccessible::Name), QLatin1StringView(type));
}

// What the keyboard can come to or a press does something to; a text is only read.
bool isControl(QAccessibleInterface *node)
{
    const auto *item = qobject_cast<QQuickItem *>(node->object());
    return actions(node).contains(QAccessibleActionInterface::pressAction()) || (item && item->activeFocusOnTab())
        || (node->state().focusable && node->role() != QAccessible::StaticText);
}

QList<QAccessibleInterface *> visibleChildren(QAccessibleInterface *node)
{
    QList<QAccessibleInterface *> children;
    for (int i = 0; i < node->childCount(); ++i) {
        QAccessibleInterface *child = node->child(i);
        if (child && !child->state().invisible)
            children << child;
    }
    return children;
}

void findFaults(QAccessibleInterface *node, QStringList *faults)
{
    QSet<QString> names;
    for (QAccessibleInterface *child : visibleChildren(node)) {
        // Qt tells no name of a password field.
        const QString name = child->text(child->state().passwordEdit ? QAccessible::Description : QAccessible::Name);
        const bool isRead = isControl(child) || child->role() == QAccessible::StaticText;
        if (isRead && child->role() == QAccessible::Client)
            *faults << "no role: "_L1 + describe(child);
        if (isRead && name.isEmpty())
            *faults << "no name: "_L1 + describe(child);
        if (isControl(child) && !name.isEmpty() && names.contains(name))
            *faults << "the same name: "_L1 + describe(child);
        if (isControl(child))
            names << name;
        findFaults(child, faults);
    }
}

bool isInTree(const QQuickItem *item)
{
    QAccessibleInterface *node = QAccessible::queryAccessibleInterface(const_cast<QQuickItem *>(item));
    return node && node->role() != QAccessible::NoRole;
}

bool hasTabStopInTree(const QQuickItem *item)
{
    if (!item->isVisible() || !item->isEnabled())
        return false;
    if (item->activeFocusOnTab() && isInTree(item))
        return true;
    const QList<QQuickItem *> children = item->childItems();
    return std::ranges::any_of(children, &hasTabStopInTree);
}

// Tab stops that a screen reader would be silent at; that of a scope is told by what it passes the focus on to.
void findSilentTabStops(const QQuickItem *item, QStringList *faults)
{
    if (!item->isVisible() || !item->isEnabled())
        return;
    if (item->activeFocusOnTab() && !isInTree(item) && !(item->isFocusScope() && hasTabStopInTree(item)))
        *faults << "silent: "_L1 + QString::fromLatin1(item->metaObject()->className());
    for (const QQuickItem *child : item->childItems())
        findSilentTabStops(child, faults);
}

} // namespace

Q_DECLARE_METATYPE(const Row *)

// What a screen reader is told of the components.
class tst_Accessibility : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyComponentHasARow();
    void nodes_data();
    void nodes();
    void names_data();
    void names();
    void namesByTheHost_data();
    void namesByTheHost();
    void actions_data();
    void actions();
    void values_data();
    void values();
    void children_data();
    void children();
    void expandedGroup();
    void editableComboBox();
    void samples_data();
    void samples();

protected:
    void prepare() override;

private:
    void rows();
    /// Shows the row's component; null for one that is passed by.
    QAccessibleInterface *node(const Row *row);
    QList<QAccessibleInterface *> shownNodes() const;
    QObject *component() const { return find<QObject>(u"component"_s); }
};

void tst_Accessibility::prepare()
{
    ComponentTest::prepare();
    setScreenReaderRunning(true);
}

void tst_Accessibility::rows()
{
    QTest::addColumn<const Row *>("row");
    for (const Row &row : Rows) {
        QTest::addRow("%s", row.title().constData()) << &row;
    }
}

QList<QAccessibleInterface *> tst_Accessibility::shownNodes() const
{
    return visibleChildren(QAccessible::queryAccessibleInterface(window()));
}

QAccessibleInterface *tst_Accessibility::node(const Row *row)
{
    const QByteArray component = row->component;
    const QByteArray qml = component == "FontConstants"
        ? "property QtObject constants: FontConstants"
        : component + " { objectName: 'component'; " + row->properties + " }";
    if (!show("Item { width: 400; height: 300; " + qml + " }"))
        return nullptr;
    window()->grabWindow(); // what settles with the first frame
    return shownNodes().value(0);
}

void tst_Accessibility::everyComponentHasARow()
{
    QSet<QString> inTable = {u"FontConstants"_s}; // nothing to see or to hear
    for (const Row &row : Rows)
        inTable << QString::fromLatin1(row.component);
    QSet<QString> inCatalogue;
    QFile file(QStringLiteral(CATALOGUE));
    QVERIFY(file.open(QIODevice::ReadOnly));
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(u'#'))
            inCatalogue << line.section(u' ', 0, 0);
    }
    QCOMPARE(inTable - inCatalogue, QSet<QString>());
    QCOMPARE(inCatalogue - inTable, QSet<QString>());
}

void tst_Accessibility::nodes_data()
{
    QTest::addColumn<const Row *>("row");
    QTest::addColumn<bool>("startsLater");
    for (const Row &row : Rows) {
        QTest::addRow("%s", row.title().constData()) << &row << false;
        QTest::addRow("%s, before the screen reader", row.title().constData()) << &row << true;
    }
}

void tst_Accessibility::nodes()
{
    QFETCH(const Row *, row);
    QFETCH(const bool, startsLater);
    setScreenReaderRunning(!startsLater);
    node(row);
    setScreenReaderRunning(true);
    QVERIFY(root());
    QAccessibleInterface *node = shownNodes().value(0);
    if (row->role == QAccessible::NoRole) {
        QCOMPARE(node ? describe(node) : QString(), QString());
        return;
    }
    QVERIFY(node);
    QCOMPARE(roleName(node->role()), roleName(row->role));
    QCOMPARE(states(node->state()), QLatin1StringView(row->states));

    root()->setEnabled(false);
    QVERIFY(node->state().disabled || qobject_cast<QQuickItem *>(component()) == nullptr); // popups stay enabled
    if (node->state().disabled)
        QVERIFY(!node->state().focusable);
}

void tst_Accessibility::names_data()
{
    rows();
}

void tst_Accessibility::names()
{
    QFETCH(const Row *, row);
    QAccessibleInterface *node = this->node(row);
    QVERIFY(root());
    if (row->role == QAccessible::NoRole)
        return;
    QVERIFY(node);
    const QStringList sources = row->nameSources();
    if (sources.isEmpty())
        QCOMPARE(node->text(QAccessible::Name), QString());
    // From the last resort on.
    for (qsizetype i = sources.size() - 1; i >= 0; --i) {
        const QString &source = sources.at(i);
        const QString name = "Named by "_L1 + source;
        QQmlProperty property(component(), source, qmlContext(component()));
        QVERIFY2(property.isValid(), qPrintable(source));
        QVERIFY(property.write(name));
        QTRY_VERIFY((node = shownNodes().value(0)) != nullptr); // an empty one may have been hidden
        QCOMPARE(node->text(QAccessible::Name), name);
    }
}

void tst_Accessibility::namesByTheHost_data()
{
    QTest::addColumn<const Row *>("row");
    QTest::addColumn<bool>("startsLater");
    // A part of a component is named by that one's properties.
    static const QSet<QByteArray> namedByProperties = {"LKDualButton",       "LKDualIconButton", "LKToggleButton",
                                                       "LKFileItem",         "LKBanner",         "WSvgSplitButton",
                                                       "WSvgSplitIconButton"};
    for (const Row &row : Rows) {
        if (row.actionName() != QAccessibleActionInterface::pressAction() || *row.variant
            || namedByProperties.contains(row.component))
            continue;
        QTest::addRow("%s", row.component) << &row << false;
        QTest::addRow("%s, before the screen reader", row.component) << &row << true;
    }
}

// What is set where a component is used goes before its text, and stays.
void tst_Accessibility::namesByTheHost()
{
    QFETCH(const Row *, row);
    QFETCH(const bool, startsLater);
    const bool hasText = row->nameSources().contains("text"_L1);
    const QByteArray name = "Accessible.name: 'By the host'; ";
    const QByteArray properties = name + (hasText ? "text: 'Of ' + objectName; " : "") + row->properties;
    Row named = *row;
    named.properties = properties.constData();
    setScreenReaderRunning(!startsLater);
    node(&named);
    setScreenReaderRunning(true);
    QAccessibleInterface *node = shownNodes().value(0);
    QVERIFY(node);
    QCOMPARE(node->text(QAccessible::Name), u"By the host"_s);
    if (hasText)
        component()->setProperty("text", u"Another"_s);
    QCOMPARE(node->text(QAccessible::Name), u"By the host"_s);
    QCOMPARE(roleName(node->role()), roleName(row->role));
}

void tst_Accessibility::actions_data()
{
    rows();
}

void tst_Accessibility::actions()
{
    QFETCH(const Row *, row);
    QAccessibleInterface *node = this->node(row);
    QVERIFY(root());
    if (row->role == QAccessible::NoRole)
        return;
    QVERIFY(node);
    const QString action = row->actionName();
    const QString press = QAccessibleActionInterface::pressAction();
    QCOMPARE(::actions(node).contains(press), action == press || row->role == QAccessible::RadioButton);
    if (action.isEmpty())
        return;
    QVERIFY(::actions(node).contains(action));

    QObject *sender = component();
    QByteArray signal = row->signal();
    if (const auto dot = signal.indexOf('.'); dot >= 0) {
        sender = sender->property(signal.first(dot).constData()).value<QObject *>();
        signal = signal.sliced(dot + 1);
    }
    QSignalSpy spy(sender, "2" + signal);
    QVERIFY(spy.isValid());
    const bool wasChecked = node->state().checked;
    node->actionInterface()->doAction(action);
    QTRY_COMPARE(spy.count(), 1);
    if (signal == "toggled()" && component()->inherits("QQuickAbstractButton")) // a session only asks its list
        QCOMPARE(node->state().checked, !wasChecked);

    if (auto *popup = component()->property("popup").value<QObject *>())
        QMetaObject::invokeMethod(popup, "close");
    root()->setEnabled(false);
    if (row->role == QAccessible::ScrollBar)
        return; // it can be moved always, as by code
    const auto count = spy.count(); // what is edited ends
    node->actionInterface()->doAction(action);
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), count);
}

void tst_Accessibility::values_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("description");
    const auto row = [](const char *name, const QByteArray &qml, const QString &value,
                        const QString &description = {}) { QTest::newRow(name) << qml << value << description; };
    row("slider", "LKSlider { to: 10; value: 4 }", u"4"_s);
    row("older slider", "WSlider { to: 10; value: 4 }", u"4"_s);
    row("progress", "WCircularProgressBar { currentValue: 40 }", {}, u"40"_s + QLocale().percent());
    row("text field", "WTextField { text: 'Ada'; Accessible.name: 'Name' }", u"Ada"_s);
    row("text field with a placeholder",
        "WTextField { text: 'Ada'; Accessible.name: 'Name'; placeholderText: 'First' }", u"Ada"_s, u"First"_s);
    row("password", "LKTextField { text: 'Ada'; isPasswordInput: true; accessibleName: 'Name' }", u"●●●"_s, u"Name"_s);
    row("password that is shown",
        "LKTextField { text: 'Ada'; isPasswordInput: true; isPasswordVisible: true; accessibleName: 'Name' }",
        u"Ada"_s);
    row("password with an information",
        "LKTextInputField { titleText: 'Name'; text: 'Ada'; isPasswordInput: true; infoTest: 'Wrong' }", u"●●●"_s,
        u"Name, Wrong"_s);
    row("older password", "WTextField { text: 'Ada'; echoMode: TextInput.Password; placeholderText: 'Name' }", u"●●●"_s,
        u"Name"_s);
    row("password input", "WTextInput { text: 'Ada'; echoMode: TextInput.Password; placeholderText: 'Name' }", u"●●●"_s,
        u"Name"_s);
    row("text field with an information", "LKTextInputField { titleText: 'Name'; text: 'Ada'; infoTest: 'Unknown' }",
        u"Ada"_s, u"Unknown"_s);
    row("information and placeholder",
        "LKTextInputField { titleText: 'Name'; text: 'Ada'; infoTest: 'Unknown'; placeholderText: 'First' }", u"Ada"_s,
        u"Unknown"_s);
    row("text area", "LKTextArea { text: 'Ada'; accessibleName: 'Name' }", u"Ada"_s);
    // It has no value of its own on any platform.
    row("combo box", "LKComboBox { accessibleText: 'Camera'; model: ['Front', 'Back']; currentIndex: 1 }", {},
        u"Back"_s);
    row("combo box that is its own name", "LKComboBox { model: ['Front', 'Back']; currentIndex: 1 }", {});
    row("badge", "LKBadgeButton { buttonText: 'Messages'; badgeText: '3' }", {}, u"3"_s);
    row("tab with a badge", "LKTabItem { text: 'Messages'; badgeText: '3' }", {}, u"3"_s);
    row("keys of an entry", "LKContextMenuItem { text: 'Copy'; shortcutText: 'Ctrl+C' }", {}, u"Ctrl+C"_s);
    row("presence", "WAvatar { displayName: 'Ada'; presenceText: 'Away' }", {}, u"Away"_s);
    row("state of a shortcut", "LKShortcutsLabel { labelText: 'F1'; accessibleName: 'Mute'; isUnavailable: true }", {},
        u"F1, Not available"_s);
    row("file", "LKFileItem { fileNameLabel: 'Minutes'; fileSizeLabel: '2 KB' }", {}, u"2 KB"_s);
}

void tst_Accessibility::values()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QString, value);
    QFETCH(const QString, description);
    for (const bool startsLater : {false, true}) {
        setScreenReaderRunning(!startsLater);
        QVERIFY(show("Item { width: 400; height: 300; " + qml + " }"));
        setScreenReaderRunning(true);
        QAccessibleInterface *node = shownNodes().value(0);
        QVERIFY(node);
        QAccessibleValueInterface *values = node->valueInterface();
        QCOMPARE(values ? values->currentValue().toString() : node->text(QAccessible::Value), value);
        QCOMPARE(node->text(QAccessible::Description), description);
    }
}

void tst_Accessibility::children_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QStringList>("children");
    const auto row = [](const char *name, const QByteArray &qml, const QStringList &children) {
        QTest::newRow(name) << qml << children;
    };
    row("menu", "WMenu { Component.onCompleted: Qt.callLater(open); WMenuItem { text: 'A' } WMenuSeparator { } }",
        {u"MenuItem A"_s, u"Separator "_s});
    row("context menu", "LKContextMenu { Component.onCompleted: Qt.callLater(open); LKContextMenuItem { text: 'A' } }",
        {u"MenuItem A"_s});
    row("menu of a popup", "LKMenu { model: ['A', { isSeparator: true }, 'B'] }",
        {u"MenuItem A"_s, u"Separator "_s, u"MenuItem B"_s});
    row("overflow list", "WButtonsOverflowList { visible: true; model: ['A', 'B'] }",
        {u"MenuItem A"_s, u"MenuItem B"_s});
    row("combo box", "WComboBox { model: ['A', 'B']; popup.visible: true; visible: false }",
        {u"ListItem A"_s, u"ListItem B"_s});
    row("tabs", "WTabBar { WTabButton { text: 'A' } WTabButton { text: 'B' } }", {u"PageTab A"_s, u"PageTab B"_s});
    row("tabs with badges", "LKTabBar { LKTabItem { text: 'A'; badgeText: '3' } }", {u"PageTab A"_s});
    row("tab with a badge", "LKTabItem { text: 'A'; badgeText: '3' }", {});
    row("pills", "WPillTabBar { width: 90; tabWidth: 40; model: ['A', 'B', 'C'] }", {u"PageTab A"_s, u"Button More"_s});
    row("sessions",
        "WExpandableListView { model: ListModel { ListElement { session: 'S'; text: 'A' } "
        "ListElement { session: 'S'; text: 'B' } } }",
        {u"Button S"_s, u"ListItem A"_s, u"ListItem B"_s});
    row("group of shortcuts", "LKKeyboardShortcutsGroupDelegate { title: 'G'; items: [{ title: 'A' }] }",
        {u"Button G"_s, u"ListItem A"_s});
    row("dialog buttons", "WDialogButtonBox { okText: 'A'; cancelText: 'B' }", {u"Button A"_s, u"Button B"_s});
    row("avatars", "AvatarListStandard { model: [{ displayName: 'A' }] }", {u"Graphic A"_s});
    row("group of avatars", "LKAvatarGroup { avatarOneId: 'A'; avatarTwoId: 'B'; overflowCount: 3 }", {});
    row("banner", "LKBanner { headerText: 'H'; subText: 'S'; actionButtonText: 'A' }",
        {u"Button A"_s, u"Button Close"_s});
    row("file", "LKFileItem { fileNameLabel: 'F'; uploadProgress: 40 }", {u"ProgressBar 40%"_s, u"Button Cancel"_s});
    row("text field", "LKTextField { text: 'A' }", {u"Button Clear"_s});
    row("password", "LKTextField { text: 'A'; isPasswordInput: true }", {u"Button Show password"_s});
    row("coach mark", "WCoachmark { titleText: 'T'; bodyText: 'B'; visible: true }",
        {u"Heading T"_s, u"StaticText B"_s, u"Button Close"_s});
    row("split view",
        "WSplitView { width: 300; height: 100; handleAccessibleName: 'Width'; Item { SplitView.preferredWidth: 90 } "
        "Item { SplitView.preferredWidth: 90 } Item { } }",
        {u"Splitter Width"_s, u"Splitter Width 2"_s});
}

// What a list or a group consists of: nothing is told twice, and nothing is missing.
void tst_Accessibility::children()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QStringList, children);
    QVERIFY(show("Item { width: 400; height: 300; " + qml + " }"));
    window()->grabWindow();
    QTRY_VERIFY(!shownNodes().isEmpty());
    const auto namesOfChildren = [this] {
        QStringList names;
        for (QAccessibleInterface *child : visibleChildren(shownNodes().value(0))) {
            // A view's row that has no role is a node without a name all the same: Qt's views see to that.
            if (child->role() == QAccessible::Client)
                child = child->child(0);
            if (child->role() != QAccessible::ScrollBar)
                names << roleName(child->role()) + u' ' + child->text(QAccessible::Name);
        }
        return names;
    };
    QTRY_COMPARE(namesOfChildren(), children);
}

// An expanded group is told as a checked one, as that of a session is.
void tst_Accessibility::expandedGroup()
{
    for (const bool startsLater : {false, true}) {
        setScreenReaderRunning(!startsLater);
        QVERIFY(show("LKKeyboardShortcutsGroupDelegate { title: 'Call' }"));
        setScreenReaderRunning(true);
        QAccessibleInterface *header = shownNodes().value(0)->child(0);
        QCOMPARE(states(header->state()), "checkable checked focusable"_L1);
        QSignalSpy toggled(root(), SIGNAL(toggled()));
        header->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(toggled.count(), 1);
        QCOMPARE(root()->property("collapsed").toBool(), true);
        QVERIFY(!header->state().checked);
        root()->setProperty("collapsed", false);
        QVERIFY(header->state().checked);
    }
}

// An editable combo box passes the focus on to its field, which has the same name.
void tst_Accessibility::editableComboBox()
{
    QVERIFY(show("LKComboBox { accessibleText: 'Camera'; editable: true; model: ['Front'] }"));
    QAccessibleInterface *box = shownNodes().value(0);
    QCOMPARE(states(box->state()), "editable focusable"_L1);
    QAccessibleInterface *field = box->child(0);
    QCOMPARE(roleName(field->role()), u"EditableText"_s);
    QCOMPARE(field->text(QAccessible::Name), u"Camera"_s);
    QCOMPARE(field->text(QAccessible::Value), u"Front"_s);
}

void tst_Accessibility::samples_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : QDir(u":/Qml"_s).entryList({u"*Sample.qml"_s}, QDir::Files, QDir::Name))
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_Accessibility::samples()
{
    QFETCH(const QString, name);
    QVERIFY(show("Loader { source: 'qrc:/Qml/" + name.toLatin1() + "' }"));
    window()->grabWindow(); // what settles with the first frame
    QCoreApplication::processEvents();
    QStringList faults;
    findFaults(QAccessible::queryAccessibleInterface(window()), &faults);
    findSilentTabStops(window()->contentItem(), &faults);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

LUMAKIT_TEST_MAIN(tst_Accessibility)
#include "tst_accessibility.moc"
