// Keyboard navigation inside a part of a screen: an ordered list of items that Tab and Backtab move through. Managers
// nest: one that is an item of another is a part of its chain.
//
// Unless navigation is forced, a manager that gets the focus holds it itself until Enter, Return or Space starts
// navigation among its items; Escape leaves it.
//
//     LKFocusManager {
//         focusableItems: [nameField, searchButton, resultList]
//         forceNavigation: true
//     }
import QtQuick

FocusScope {
    id: root

    enum FocusReason { Tab, Backtab, Click, Restore }

    // Tab moves among the items.
    property bool isNavigating: false
    // An array of items, or a ListView, whose delegates are the items then. A Loader stands for what it has loaded.
    property var focusableItems: []
    // Behind the last item comes the first; otherwise the move goes on in the enclosing manager.
    property bool wrapAround: true
    // Taking focus selects an item at once, and Escape does not leave navigation.
    property bool forceNavigation: false
    // Why the manager last took or passed focus.
    property int focusReason: LKFocusManager.FocusReason.Tab
    // Called on every change of the manager's active focus; true keeps the manager from reacting.
    property var beforeHandlingChangeOfFocus: () => false
    // Internal: the current item, whether or not it has the focus.
    property int currentFocusedIndex: 0
    // Internal: the first index that the move under way has reached; -1 without a move.
    property int circleStart: -1
    // Internal: how many times an item inside is being given the focus, which it may hand on.
    property int passes: 0

    // The index of the current item; -1 without active focus.
    function getCurrentFocusedIndex(): int {
        return activeFocus ? currentFocusedIndex : -1;
    }

    function isManagingListView(): bool {
        return focusableItems instanceof ListView;
    }

    function count(): int {
        if (!focusableItems)
            return 0;
        return isManagingListView() ? focusableItems.count : focusableItems.length;
    }

    // The current item; undefined while it is not navigated or cannot be used.
    function getActiveFocusedItem(): var {
        if (!activeFocus || !isNavigating || currentFocusedIndex < 0 || currentFocusedIndex >= count())
            return undefined;
        return isUsable(itemAt(currentFocusedIndex)) ? currentItem() : undefined;
    }

    function startNavigation() {
        currentFocusedIndex = -1;
        focusNext();
    }

    // Keeps the focus, without a current item.
    function stopNavigation() {
        isNavigating = false;
        dummy.forceActiveFocus();
    }

    function focusNext() {
        isNavigating = true;
        currentFocusedIndex = Math.max(-1, currentFocusedIndex);
        move(LKFocusManager.FocusReason.Tab, () => {
            if (currentFocusedIndex < count() - 1)
                return currentFocusedIndex + 1;
            return wrapAround ? 0 : undefined;
        });
    }

    function focusPrevious() {
        isNavigating = true;
        currentFocusedIndex = Math.min(count(), currentFocusedIndex);
        move(LKFocusManager.FocusReason.Backtab, () => {
            if (currentFocusedIndex > 0)
                return currentFocusedIndex - 1;
            return wrapAround ? count() - 1 : undefined;
        });
    }

    // Moves on in the manager that encloses the item; without one nothing happens.
    function focusNextAbove(item: Item) {
        const manager = getParentFocusManager(item);
        if (!manager)
            return;
        isNavigating = false;
        manager.focusNext();
    }

    function focusPreviousAbove(item: Item) {
        const manager = getParentFocusManager(item);
        if (!manager)
            return;
        isNavigating = false;
        manager.focusPrevious();
    }

    function isAFocusManager(item: var): bool {
        return item instanceof LKFocusManager;
    }

    // For Enter, Return and Space.
    function startNavigationIfNeeded(event: var) {
        if (isNavigating)
            return;
        event.accepted = true;
        startNavigation();
    }

    // Makes every enclosing manager navigate to this one.
    function setDirectFocus(reason: int) {
        focusReason = reason;
        const manager = getParentFocusManager(root);
        if (!manager)
            return;
        manager.focusReason = reason;
        manager.isNavigating = true;
        manager.forceIndexChainTo(root, reason);
    }

    // The nearest manager around the item; null without one.
    function getParentFocusManager(item: var): var {
        for (let ancestor = item?.parent; ancestor; ancestor = ancestor.parent) {
            if (isAFocusManager(ancestor))
                return ancestor;
        }
        return null;
    }

    // For what takes the focus away for a while, such as a dialog: the way back leads to the same item.
    function setFocusReasonToRestore() {
        focusReason = LKFocusManager.FocusReason.Restore;
        getParentFocusManager(root)?.setFocusReasonToRestore();
    }

    // Makes the managed item that is the item, or holds it, the current one, here and in every enclosing manager.
    function forceIndexChainTo(item: Item, reason: int) {
        const index = indexOf(item);
        if (index < 0)
            return;
        currentFocusedIndex = index;
        setDirectFocus(reason);
    }

    // For click handlers.
    function focusByClick() {
        setDirectFocus(LKFocusManager.FocusReason.Click);
        forceActiveFocus(Qt.TabFocusReason);
    }

    // Internal. The managed item at an index, a Loader as it is.
    function itemAt(index: int): var {
        return isManagingListView() ? focusableItems.itemAtIndex(index) : focusableItems?.[index];
    }

    // Scrolls a list to an item, which makes its delegate.
    function reveal(index: int) {
        if (isManagingListView())
            focusableItems.positionViewAtIndex(index, ListView.Contain);
    }

    function currentItem(): var {
        if (currentFocusedIndex < 0 || currentFocusedIndex >= count())
            return undefined;
        const item = itemAt(currentFocusedIndex);
        return item instanceof Loader && item.item ? item.item : item;
    }

    function isUsable(item: var): bool {
        const used = item instanceof Loader ? item.item : item;
        return !!used && used.visible && used.enabled;
    }

    // The index of the managed item that is the item or one of its ancestors; -1 when none is.
    function indexOf(item: Item): int {
        const view = isManagingListView() ? focusableItems : null;
        for (let candidate = item; candidate; candidate = candidate.parent) {
            if (!view) {
                const index = focusableItems ? Array.prototype.indexOf.call(focusableItems, candidate) : -1;
                if (index >= 0)
                    return index;
            } else if (candidate.parent === view.contentItem) {
                return view.indexAt(candidate.x + candidate.width / 2, candidate.y + candidate.height / 2);
            }
        }
        return -1;
    }

    // Steps until the current item is usable and gives it the focus; a step that leads out goes on in the enclosing
    // manager. An item that is a manager may hand the move back to this one, which then goes on with the same circle.
    function move(reason: int, step: var) {
        const begins = circleStart < 0;
        const moved = moveToUsable(step);
        if (moved)
            forceActiveFocusOnCurrent(reason);
        else if (moved === undefined && reason === LKFocusManager.FocusReason.Tab)
            focusNextAbove(root);
        else if (moved === undefined)
            focusPreviousAbove(root);
        if (begins)
            circleStart = -1;
    }

    // False when no item is usable, after one circle; undefined when a step leads out.
    function moveToUsable(step: var): var {
        for (;;) {
            const next = step();
            if (next === undefined)
                return undefined;
            currentFocusedIndex = next;
            if (next === circleStart)
                return false;
            if (circleStart < 0)
                circleStart = next;
            reveal(next);
            if (isUsable(itemAt(next)))
                return true;
        }
    }

    function forceActiveFocusOnCurrent(reason: int) {
        focusReason = reason;
        const item = currentItem();
        if (!item || item.activeFocus)
            return;
        takeOverTab(item);
        if (isAFocusManager(item))
            item.focusReason = reason;
        if (reason === LKFocusManager.FocusReason.Restore)
            return; // it keeps the focus or gets it back by itself
        const managers = focusedManagers();
        for (const manager of managers)
            ++manager.passes;
        if (reason === LKFocusManager.FocusReason.Tab)
            item.forceActiveFocus(Qt.TabFocusReason);
        else if (reason === LKFocusManager.FocusReason.Backtab)
            item.forceActiveFocus(Qt.BacktabFocusReason);
        else
            item.forceActiveFocus();
        for (const manager of managers)
            --manager.passes;
        if (activeFocus && !isNavigating)
            managers.find(manager => manager.getActiveFocusedItem())?.forceActiveFocusOnCurrent(reason);
    }

    // This manager and those around it that have the focus. When an item that gets the focus hands it on to one behind
    // them, Qt gives it back to all of them afterwards.
    function focusedManagers(): var {
        const managers = [];
        for (let manager = root; manager; manager = getParentFocusManager(manager)) {
            if (manager.activeFocus)
                managers.push(manager);
        }
        return managers;
    }

    // Without any of its items having it.
    function takeFocus() {
        forceActiveFocus();
        for (let item = Window.activeFocusItem; item && item !== root && isInside(item); item = Window.activeFocusItem)
            item.focus = false;
    }

    // The next time the focus comes to the manager and not to what had it last.
    function forgetFocus(item: Item) {
        if (!item)
            return;
        item.focus = false;
        for (const child of item instanceof FocusScope ? [] : item.children)
            forgetFocus(child);
    }

    function isInside(item: Item): bool {
        for (let ancestor = item.parent; ancestor; ancestor = ancestor.parent) {
            if (ancestor === root)
                return true;
        }
        return false;
    }

    // Its items are no tab stops of their own: an item that is one would keep Tab from the manager.
    function takeOverTab(item: var) {
        const used = item instanceof Loader && item.item ? item.item : item;
        if (used)
            used.activeFocusOnTab = false;
    }

    // Somebody gave the focus to a managed item, by the mouse or by code: it is navigated to.
    function adoptFocusedItem(): bool {
        const index = Window.activeFocusItem !== root ? indexOf(Window.activeFocusItem) : -1;
        if (index < 0)
            return false;
        currentFocusedIndex = index;
        isNavigating = true;
        takeOverTab(itemAt(index));
        return true;
    }

    function handleFocusGained() {
        const navigates = forceNavigation || isNavigating;
        if (focusReason === LKFocusManager.FocusReason.Tab && adoptFocusedItem())
            return;
        if (focusReason === LKFocusManager.FocusReason.Tab && forceNavigation) {
            startNavigation();
        } else if (focusReason === LKFocusManager.FocusReason.Backtab && forceNavigation) {
            currentFocusedIndex = count();
            focusPrevious();
        } else if (focusReason === LKFocusManager.FocusReason.Click && navigates) {
            isNavigating = true;
            forceActiveFocusOnCurrent(LKFocusManager.FocusReason.Click);
        } else if (focusReason === LKFocusManager.FocusReason.Restore && navigates && currentItem()) {
            forceActiveFocusOnCurrent(LKFocusManager.FocusReason.Restore);
            focusReason = LKFocusManager.FocusReason.Tab;
        } else {
            takeFocus();
        }
    }

    Accessible.role: Accessible.Grouping

    onActiveFocusChanged: {
        if (activeFocus && passes > 0)
            return; // given back by Qt; whoever hands it on takes it away again
        if (activeFocus)
            getParentFocusManager(root)?.forceIndexChainTo(root, focusReason);
        if (beforeHandlingChangeOfFocus())
            return;
        if (activeFocus) {
            handleFocusGained();
        } else if (focusReason !== LKFocusManager.FocusReason.Restore) {
            isNavigating = false;
            focusReason = LKFocusManager.FocusReason.Tab;
            forgetFocus(dummy);
            for (const item of isManagingListView() ? [currentItem()] : focusableItems ?? [])
                forgetFocus(item);
        }
    }
    onFocusableItemsChanged: {
        for (let i = 0; i < count(); ++i)
            takeOverTab(itemAt(i));
    }

    Keys.onEnterPressed: event => startNavigationIfNeeded(event)
    Keys.onReturnPressed: event => startNavigationIfNeeded(event)
    Keys.onSpacePressed: event => startNavigationIfNeeded(event)
    Keys.onEscapePressed: event => {
        event.accepted = !forceNavigation && isNavigating;
        if (event.accepted)
            stopNavigation();
    }
    Keys.onTabPressed: event => {
        event.accepted = isNavigating;
        if (event.accepted)
            focusNext();
    }
    Keys.onBacktabPressed: event => {
        event.accepted = isNavigating;
        if (event.accepted)
            focusPrevious();
    }

    // Takes the focus when navigation stops.
    Item {
        id: dummy

        objectName: "dummy-of-" + root.objectName

        Accessible.ignored: true
        Accessible.focusable: false
        Accessible.role: Accessible.NoRole
        Accessible.name: root.Accessible.name
    }
}
