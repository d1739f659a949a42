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

constexpr auto Press = "Press";
constexpr auto Increase = "Increase";

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
    /// The properties that the name comes from, the first that is set of them; none for a node without a name.
    QStringList names = {};
    /// All that are set.
    const char *states = "";
    /// What can be done with it, and the signal that follows.
    const char *action = "";
    const char *signal = "";
};

const Row Rows[] = {
    // buttons
    {"LKButtonBase", "", "", QAccessible::Button, {u"text"_s}, "focusable", Press, "clicked()"},
    {"LKButtonBase", "checkable", "checkable: true", QAccessible::Button, {u"text"_s}, "checkable focusable", Press,
     "toggled()"},
    {"LKPillButton", "", "", QAccessible::Button, {u"text"_s}, "focusable", Press, "clicked()"},
    {"LKRoundButton", "", "", QAccessible::Button, {u"Accessible.name"_s, u"text"_s}, "focusable", Press, "clicked()"},
    {"LKIconButton", "", "", QAccessible::Button, {u"Accessible.name"_s, u"text"_s}, "focusable", Press, "clicked()"},
    {"LKIconButton", "checked", "checkable: true; checked: true", QAccessible::Button, {u"Accessible.name"_s},
     "checkable checked focusable", Press, "toggled()"},
    {"LKToolButton", "", "", QAccessible::Button, {u"Accessible.name"_s, u"text"_s}, "focusable", Press, "clicked()"},
    {"LKHyperlinkButton", "", "", QAccessible::Link, {u"text"_s}, "focusable", Press, "clicked()"},
    {"LKDualButton", "", "", QAccessible::Button, {u"leftAccessibleName"_s}, "focusable", Press,
     "leftButton.clicked()"},
    {"LKDualIconButton", "", "", QAccessible::Button, {u"leftAccessibleName"_s}, "focusable", Press,
     "leftButton.clicked()"},
    {"LKToggleButton", "", "", QAccessible::RadioButton, {u"leftAccessibleName"_s}, "checkable checked focusable"},
    {"LKToggleButton", "off", "rightButton.checked: true", QAccessible::RadioButton, {u"leftAccessibleName"_s},
     "checkable focusable", Press, "leftButton.toggled()"},
    {"LKBadgeButton", "", "", QAccessible::Button, {u"buttonText"_s, u"tooltip"_s}, "focusable", Press, "triggered()"},
    {"WButton", "", "", QAccessible::Button, {u"text"_s, u"tooltip"_s}, "focusable", Press, "triggered()"},
    {"WButton", "checkable", "checkable: true; checked: true", QAccessible::Button, {u"text"_s, u"tooltip"_s},
     "checkable checked focusable", Press, "toggled()"},
    {"WSvgButton", "", "", QAccessible::Button, {u"text"_s, u"tooltip"_s}, "focusable", Press, "triggered()"},
    {"WSvgIconButton", "", "", QAccessible::Button, {u"text"_s, u"tooltip"_s}, "focusable", Press, "triggered()"},
    {"WSvgSplitButton", "", "", QAccessible::Button, {u"leftButton.text"_s, u"leftButton.tooltip"_s}, "focusable",
     Press, "leftClicked()"},
    {"WSvgSplitIconButton", "", "", QAccessible::Button, {u"leftButton.tooltip"_s}, "focusable", Press,
     "leftClicked()"},
    {"WPillButton", "", "", QAccessible::Button, {u"text"_s, u"tooltip"_s}, "focusable", Press, "triggered()"},
    {"WKeyButton", "", "", QAccessible::Button, {u"primary"_s}, "focusable", Press, "triggered()"},
    {"WMessageBannerButton", "", "", QAccessible::Button, {u"text"_s, u"tooltip"_s}, "focusable", Press,
     "triggered()"},
    {"WDialogButtonBox", "", "", QAccessible::Grouping, {u"Accessible.name"_s}},
    {"WButtonsOverflowList", "", "model: ['Files']; visible: true", QAccessible::PopupMenu},
    {"PeopleSummaryBricklet", "", "", QAccessible::Button, {u"text"_s}, "focusable selectable", Press, "triggered()"},

    // selection controls
    {"LKCheckBox", "", "", QAccessible::CheckBox, {u"accessibleText"_s, u"text"_s, u"tooltip"_s},
     "checkable focusable", Press, "toggled()"},
    {"WCheckBox", "", "", QAccessible::CheckBox, {u"text"_s, u"tooltip"_s}, "checkable focusable", Press, "toggled()"},
    {"WCheckBox", "partially", "tristate: true; checkState: Qt.PartiallyChecked", QAccessible::CheckBox, {u"text"_s},
     "checkStateMixed checkable focusable", Press, "toggled()"},
    {"LKRadioButton", "", "", QAccessible::RadioButton, {u"accessibleText"_s, u"text"_s, u"tooltip"_s},
     "checkable focusable", Press, "toggled()"},
    {"WSwitch", "", "", QAccessible::CheckBox, {u"text"_s, u"tooltip"_s}, "checkable focusable", Press, "toggled()"},
    {"LKComboBox", "", "", QAccessible::ComboBox, {u"accessibleText"_s, u"tooltip"_s, u"displayText"_s}, "focusable",
     Press, "popup.opened()"},
    {"WComboBox", "", "", QAccessible::ComboBox, {u"Accessible.name"_s, u"tooltip"_s, u"displayText"_s}, "focusable",
     Press, "popup.opened()"},
    {"LKSlider", "", "", QAccessible::Slider, {u"accessibleText"_s}, "focusable", Increase, "moved()"},
    {"WSlider", "", "", QAccessible::Slider, {u"Accessible.name"_s}, "focusable", Increase, "moved()"},

    // text
    {"LKLabelBase", "", "", QAccessible::StaticText, {u"text"_s}, "focusable readOnly"},
    {"LKTextField", "", "", QAccessible::EditableText, {u"accessibleName"_s, u"placeholderText"_s},
     "editable focusable"},
    {"LKTextField", "password", "isPasswordInput: true", QAccessible::EditableText, {u"accessibleName"_s},
     "editable focusable passwordEdit"},
    {"LKTextFieldBase", "", "", QAccessible::EditableText, {u"placeholderText"_s}, "editable focusable"},
    {"LKTextInputField", "", "", QAccessible::EditableText,
     {u"accessibleName"_s, u"titleText"_s, u"placeholderText"_s}, "editable focusable"},
    {"LKTextArea", "", "", QAccessible::EditableText, {u"accessibleName"_s, u"placeholderText"_s},
     "editable focusable multiLine"},
    {"LKTextAreaBase", "", "", QAccessible::EditableText, {u"placeholderText"_s}, "editable focusable multiLine"},
    {"LKShortcutsLabel", "", "", QAccessible::HotkeyField, {u"accessibleName"_s, u"labelText"_s}, "focusable", Press,
     "isInEditModeChanged()"},
    {"WLabel", "", "", QAccessible::StaticText, {u"text"_s, u"toolTipText"_s}, "focusable readOnly"},
    {"WAccessibleLabel", "", "", QAccessible::StaticText, {u"text"_s, u"toolTipText"_s}, "focusable readOnly"},
    {"WText", "", "", QAccessible::StaticText, {u"text"_s}, "focusable readOnly"},
    {"WTextElide", "", "", QAccessible::StaticText, {u"text"_s}, "focusable readOnly"},
    {"WTextEdit", "", "", QAccessible::EditableText, {u"Accessible.name"_s}, "editable focusable multiLine"},
    {"WTextEdit", "read-only", "readOnly: true", QAccessible::StaticText, {u"text"_s}, "focusable multiLine readOnly"},
    {"WTextEditElide", "", "", QAccessible::StaticText, {u"originalText"_s}, "focusable readOnly"},
    {"WTextEditElideMultiline", "", "", QAccessible::StaticText, {u"originalText"_s}, "focusable multiLine readOnly"},
    {"WTextEditLink", "", "markup: '<a href=\"terms\">Terms</a>'", QAccessible::Link, {u"markup"_s},
     "focusable multiLine readOnly", Press, "linkActivated(QString)"},
    {"WTextField", "", "", QAccessible::EditableText, {u"Accessible.name"_s, u"placeholderText"_s},
     "editable focusable"},
    {"WTextField", "password", "echoMode: TextInput.Password", QAccessible::EditableText, {u"placeholderText"_s},
     "editable focusable passwordEdit"},
    {"WTextField", "read-only", "readOnly: true", QAccessible::EditableText, {u"placeholderText"_s},
     "editable focusable readOnly"},
    {"WTextArea", "", "", QAccessible::EditableText, {u"Accessible.name"_s, u"placeholderText"_s},
     "editable focusable multiLine"},
    {"WTextArea", "read-only", "readOnly: true", QAccessible::EditableText, {u"placeholderText"_s},
     "editable focusable multiLine readOnly"},
    {"WTextInput", "", "", QAccessible::EditableText, {u"Accessible.name"_s, u"placeholderText"_s},
     "editable focusable"},
    {"WLineEdit", "", "", QAccessible::EditableText, {u"placeholderText"_s}, "editable focusable"},
    {"WFlickableLineEdit", "", "", QAccessible::EditableText, {u"lineEdit.placeholderText"_s}, "editable focusable"},
    {"WFlickableTextEdit", "", "", QAccessible::EditableText, {u"accessibleText"_s}, "editable focusable multiLine"},
    {"WSearchField", "", "", QAccessible::EditableText, {u"searchFieldAccText"_s, u"serachFieldPlaceHolderText"_s},
     "editable focusable searchEdit"},
    {"WHyperlink", "", "", QAccessible::Link, {u"text"_s, u"tooltip"_s}, "focusable", Press, "triggered()"},

    // menus and popups
    {"LKMenu", "", "model: ['Copy']", QAccessible::PopupMenu, {u"Accessible.name"_s}},
    {"LKMenuItem", "", "", QAccessible::MenuItem, {u"text"_s}, "focusable", Press, "selectItem()"},
    {"LKMenuItem", "checked", "checkable: true; checked: true", QAccessible::MenuItem, {u"text"_s},
     "checkable checked focusable", Press, "selectItem()"},
    {"LKMenuSeparator", "", "", QAccessible::Separator},
    {"LKContextMenu", "", "Component.onCompleted: Qt.callLater(open)", QAccessible::PopupMenu, {u"title"_s}, "focused"},
    {"LKContextMenuItem", "", "", QAccessible::MenuItem, {u"text"_s}, "focusable", Press, "triggered()"},
    {"WMenu", "", "Component.onCompleted: Qt.callLater(open)", QAccessible::PopupMenu, {u"title"_s}, "focused"},
    {"WMenuItem", "", "", QAccessible::MenuItem, {u"text"_s}, "focusable", Press, "triggered()"},
    {"WMenuSeparator", "", "", QAccessible::Separator},
    {"WPopupList", "", "", QAccessible::List, {u"Accessible.name"_s, u"headerText"_s}},
    {"WToolTip", "", "visible: true", QAccessible::ToolTip, {u"text"_s}},
    {"WSystemToolTip", "", "", QAccessible::ToolTip, {u"text"_s}},
    {"WCoachmark", "", "visible: true", QAccessible::ToolTip, {u"accessibleName"_s, u"titleText"_s}},
    {"WFTEDialog", "", "", QAccessible::Dialog, {u"titleText"_s}},

    // lists, tabs and scrolling
    {"LKTabBar", "", "", QAccessible::PageTabList, {u"Accessible.name"_s}},
    {"LKTabItem", "", "", QAccessible::PageTab, {u"text"_s, u"tooltip"_s}, "checkable focusable selectable", Press,
     "clicked()"},
    {"LKTabItem", "current", "checked: true", QAccessible::PageTab, {u"text"_s},
     "checkable checked focusable selectable selected", Press, "clicked()"},
    {"LKScrollBar", "", "size: 0.3", QAccessible::ScrollBar, {}, "", Increase, "positionChanged()"},
    {"LKScrollView", "", "width: 100; height: 100", QAccessible::Pane, {u"Accessible.name"_s}},
    {"LKScrollView", "that scrolls", "contentHeight: 400; width: 100; height: 100", QAccessible::Pane,
     {u"Accessible.name"_s}, "focusable"},
    {"WListView", "", "listView.model: 2; listView.delegate: Item { height: 9 }", QAccessible::List,
     {u"Accessible.name"_s}, "focusable"},
    {"WGridView", "", "model: 2; delegate: Item { }", QAccessible::List, {u"Accessible.name"_s}, "focusable"},
    {"WExpandableListView", "", "model: ListModel { ListElement { session: 'Today'; text: 'Ada' } }",
     QAccessible::List, {u"Accessible.name"_s}, "focusable"},
    {"WExpandableListViewItem", "", "", QAccessible::ListItem, {u"Accessible.name"_s, u"sessionName"_s},
     "focusable selectable", Press, "triggered()"},
    {"WExpandableListViewItem", "chosen", "checked: true", QAccessible::ListItem, {u"sessionName"_s},
     "focusable selectable selected", Press, "triggered()"},
    {"WExpandableDelegate", "", "", QAccessible::ListItem, {u"text"_s}, "focusable selectable", Press, "triggered()"},
    // A session that is expanded is told as one that is checked: QML has no state for it.
    {"WSessionDelegate", "", "expanded: true", QAccessible::Button, {u"sessionName"_s}, "checkable checked focusable",
     Press, "toggled()"},
    {"WSessionDelegate", "collapsed", "expanded: false", QAccessible::Button, {u"sessionName"_s},
     "checkable focusable", Press, "toggled()"},
    {"WTabBar", "", "", QAccessible::PageTabList, {u"Accessible.name"_s}},
    {"WTabButton", "", "", QAccessible::PageTab, {u"text"_s, u"tooltip"_s}, "checkable focusable selectable", Press,
     "clicked()"},
    {"WTabButton", "current", "checked: true", QAccessible::PageTab, {u"text"_s},
     "checkable checked focusable selectable selected", Press, "clicked()"},
    {"DTabBar", "", "", QAccessible::PageTabList, {u"Accessible.name"_s}},
    {"DTabButton", "", "", QAccessible::PageTab, {u"text"_s, u"tooltip"_s}, "checkable focusable selectable", Press,
     "clicked()"},
    {"WPillTabBar", "", "model: ['All']", QAccessible::PageTabList, {u"Accessible.name"_s}},
    {"DScrollBar", "", "size: 0.3", QAccessible::ScrollBar, {}, "", Increase, "positionChanged()"},
    {"WScrollHelper"},
    {"ListItemBackground"},
    {"LKKeyboardShortcutsGroupDelegate", "", "", QAccessible::Grouping, {u"title"_s}},
    {"LKKeyboardShortcutsItemDelegate", "", "", QAccessible::ListItem, {u"title"_s}, "focusable selectable", Press,
     "clicked()"},

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
    {"WGifLabel", "", "text: 'Recording'", QAccessible::StaticText, {u"text"_s}, "focusable readOnly"},
    {"WGifLabel", "without a text"},
    {"WCoverImage"},
    {"WAvatar", "", "", QAccessible::Graphic, {u"displayName"_s}},
    {"WAvatar", "interactive", "allowInteractions: true", QAccessible::Button, {u"displayName"_s}, "focusable", Press,
     "clicked()"},
    {"WSelfMessageAvatar", "", "", QAccessible::Graphic, {u"Accessible.name"_s}},
    {"LKAvatarGroup", "", "", QAccessible::Graphic, {u"avatarOneId"_s}},
    {"AvatarListStandard", "", "", QAccessible::List, {u"Accessible.name"_s}},
    {"WCircularProgressBar", "", "", QAccessible::ProgressBar, {u"Accessible.name"_s}},

    // banners, badges and tags
    {"LKAlertBanner", "", "", QAccessible::AlertMessage, {u"text"_s, u"subText"_s}},
    {"LKAlertBanner", "interactive", "interactive: true", QAccessible::Button, {u"text"_s, u"subText"_s}, "focusable",
     Press, "clicked()"},
    {"LKBanner", "", "", QAccessible::AlertMessage, {u"headerText"_s, u"subText"_s}},
    {"LKBanner", "interactive", "interactive: true", QAccessible::Button, {u"headerText"_s, u"subText"_s}, "focusable",
     Press, "clicked()"},
    {"LKBadge", "", "text: '3'", QAccessible::StaticText, {u"text"_s}, "focusable readOnly"},
    {"LKIndicatorBadge", "", "", QAccessible::Indicator, {u"Accessible.name"_s}},
    {"LKTag", "", "", QAccessible::StaticText, {u"text"_s}, "focusable readOnly"},
    {"LKMeetingMarker"},
    {"LKFileItem", "", "", QAccessible::Button, {u"fileNameLabel"_s}, "focusable", Press, "clicked()"},
    {"WTag", "", "", QAccessible::StaticText, {u"text"_s, u"tooltip"_s}, "focusable readOnly"},
    {"WTag", "interactive", "interactive: true", QAccessible::Button, {u"text"_s, u"tooltip"_s}, "focusable", Press,
     "triggered()"},
    {"WEmptyState", "", "title: 'Nothing'", QAccessible::StaticText, {u"title"_s}, "focusable readOnly"},
    {"WNamedValue", "", "", QAccessible::StaticText, {u"name"_s}, "focusable readOnly"},

    // frames, shapes and effects
    {"WItem"},
    {"WRectangle"},
    {"WFrame"},
    {"WPane", "", "", QAccessible::Pane, {u"Accessible.name"_s}},
    {"WSeparator", "", "", QAccessible::Separator},
    {"WGradientRectangle"},
    {"WGradientRectangleRoundCorner"},
    {"WDropShadow"},
    {"WDropShadowRect"},
    {"WFade"},
    {"WFadeStates"},
    {"WSplitView", "", "", QAccessible::Pane, {u"Accessible.name"_s}},
    {"WResizeFrame"},
    {"WMoveWindowArea"},
    {"WCursorItem"},
    {"WShortcut"},

    // focus
    {"LKFocusManager", "", "", QAccessible::Grouping, {u"Accessible.name"_s}},
    {"LKFocusManager", "that Tab comes to", "activeFocusOnTab: true", QAccessible::Grouping, {u"Accessible.name"_s},
     "focusable"},
    {"LKFocusManagerProxy", "", "target: parent"},
};

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
        const QString name = child->text(QAccessible::Name);
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
        const char *separator = *row.variant ? ", " : "";
        QTest::addRow("%s%s%s", row.component, separator, row.variant) << &row;
    }
}

QList<QAccessibleInterface *> tst_Accessibility::shownNodes() const
{
    return visibleChildren(QAccessible::queryAccessibleInterface(window()));
}

QAccessibleInterface *tst_Accessibility::node(const Row *row)
{
    const QByteArray component = row->component;
    const QByteArray qml = component == "FontConstants" ? "property QtObject constants: FontConstants"
                                                        : component + " { objectName: 'component'; " + row->properties
                                                              + " }";
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
        const char *separator = *row.variant ? ", " : "";
        QTest::addRow("%s%s%s", row.component, separator, row.variant) << &row << false;
        QTest::addRow("%s%s%s, before the screen reader", row.component, separator, row.variant) << &row << true;
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
    if (row->names.isEmpty())
        QCOMPARE(node->text(QAccessible::Name), QString());
    // From the last resort on.
    for (qsizetype i = row->names.size() - 1; i >= 0; --i) {
        const QString &source = row->names.at(i);
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
    for (const Row &row : Rows) {
        if (row.names.contains("Accessible.name"_L1) || QLatin1StringView(row.action) == QLatin1StringView(Press)) {
            const char *separator = *row.variant ? ", " : "";
            QTest::addRow("%s%s%s", row.component, separator, row.variant) << &row;
        }
    }
}

// What is set where a component is used goes before everything else, and stays.
void tst_Accessibility::namesByTheHost()
{
    QFETCH(const Row *, row);
    const QString path = QLatin1StringView(row->signal).contains(u'.') || row->names.value(0).contains(u'.')
        ? QString()
        : u"Accessible.name: 'By the host'; "_s;
    if (path.isEmpty() || QByteArrayView(row->component) == "LKBanner" || QByteArrayView(row->component) == "LKFileItem")
        QSKIP("named by the properties of its parts");
    const QByteArray properties = path.toLatin1() + row->properties;
    Row named = *row;
    named.properties = properties.constData();
    QAccessibleInterface *node = this->node(&named);
    QVERIFY(node);
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
    const QString action = QString::fromLatin1(row->action);
    const QString press = QAccessibleActionInterface::pressAction();
    QCOMPARE(::actions(node).contains(press), action == press || row->role == QAccessible::RadioButton);
    if (action.isEmpty())
        return;
    QVERIFY(::actions(node).contains(action));

    QObject *sender = component();
    QByteArray signal = row->signal;
    if (const auto dot = signal.indexOf('.'); dot >= 0) {
        sender = sender->property(signal.first(dot).constData()).value<QObject *>();
        signal = signal.sliced(dot + 1);
    }
    QSignalSpy spy(sender, "2" + signal);
    QVERIFY(spy.isValid());
    const bool wasChecked = node->state().checked;
    node->actionInterface()->doAction(action);
    QTRY_COMPARE(spy.count(), 1);
    if (signal == "toggled()")
        QCOMPARE(node->state().checked, !wasChecked || row->role == QAccessible::RadioButton);

    if (auto *popup = component()->property("popup").value<QObject *>())
        QMetaObject::invokeMethod(popup, "close");
    root()->setEnabled(false);
    node->actionInterface()->doAction(action);
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 1);
}

void tst_Accessibility::values_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("description");
    const auto row = [](const char *name, const QByteArray &qml, const QString &value, const QString &description = {}) {
        QTest::newRow(name) << qml << value << description;
    };
    row("slider", "LKSlider { to: 10; value: 4 }", u"4"_s);
    row("older slider", "WSlider { to: 10; value: 4 }", u"4"_s);
    row("progress", "WCircularProgressBar { currentValue: 40 }", u"40"_s, u"40"_s + QLocale().percent());
    row("text field", "WTextField { text: 'Ada'; Accessible.name: 'Name' }", u"Ada"_s);
    row("text field with a placeholder", "WTextField { text: 'Ada'; Accessible.name: 'Name'; placeholderText: 'First' }",
        u"Ada"_s, u"First"_s);
    row("password", "LKTextField { text: 'Ada'; isPasswordInput: true; accessibleName: 'Name' }", u"●●●"_s);
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
