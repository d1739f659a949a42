# Every component and script, one folder a family; all land flat at qrc:/Qml.
set(LUMAKIT_QML_FILES
    banners/LKAlertBanner.qml
    banners/LKBadge.qml
    banners/LKBanner.qml
    banners/LKFileItem.qml
    banners/LKIndicatorBadge.qml
    banners/LKMeetingMarker.qml
    banners/LKTag.qml
    banners/WEmptyState.qml
    buttons/LKBadgeButton.qml
    buttons/LKButtonBase.qml
    buttons/LKDualButton.qml
    buttons/LKDualIconButton.qml
    buttons/LKHyperlinkButton.qml
    buttons/LKIconButton.qml
    buttons/LKPillButton.qml
    buttons/LKRoundButton.qml
    buttons/LKToggleButton.qml
    buttons/LKToolButton.qml
    buttons/PeopleSummaryBricklet.qml
    buttons/WButton.qml
    buttons/WButtonsOverflowList.qml
    buttons/WDialogButtonBox.qml
    buttons/WHyperlink.qml
    buttons/WKeyButton.qml
    buttons/WMessageBannerButton.qml
    buttons/WPillButton.qml
    buttons/WSvgButton.qml
    buttons/WSvgIconButton.qml
    buttons/WSvgSplitButton.qml
    buttons/WSvgSplitIconButton.qml
    buttons/WTag.qml
    constants/FontConstants.qml
    effects/WDropShadow.qml
    effects/WDropShadowRect.qml
    effects/WFade.qml
    effects/WFadeStates.qml
    effects/WGradientRectangle.qml
    effects/WGradientRectangleRoundCorner.qml
    focus/LKFocusManager.qml
    focus/LKFocusManagerProxy.qml
    frames/ListItemBackground.qml
    frames/WCursorItem.qml
    frames/WFrame.qml
    frames/WItem.qml
    frames/WMoveWindowArea.qml
    frames/WPane.qml
    frames/WRectangle.qml
    frames/WResizeFrame.qml
    frames/WSeparator.qml
    frames/WShortcut.qml
    frames/WSplitView.qml
    images/AvatarListStandard.qml
    images/LKAvatarGroup.qml
    images/LKSvgResource.qml
    images/WAvatar.qml
    images/WCircularProgressBar.qml
    images/WCoverImage.qml
    images/WDynamicAnimatedImage.qml
    images/WDynamicImage.qml
    images/WGifLabel.qml
    images/WImage.qml
    images/WSelfMessageAvatar.qml
    images/WSpinner.qml
    images/WSvgIcon.qml
    images/WSvgImage.qml
    images/WSvgSequenceAnimated.qml
    images/WSvgSpinner.qml
    lists/DScrollBar.qml
    lists/DTabBar.qml
    lists/DTabButton.qml
    lists/LKKeyboardShortcutsGroupDelegate.qml
    lists/LKKeyboardShortcutsItemDelegate.qml
    lists/LKScrollBar.qml
    lists/LKScrollView.qml
    lists/LKTabBar.qml
    lists/LKTabItem.qml
    lists/WExpandableDelegate.qml
    lists/WExpandableListView.qml
    lists/WExpandableListViewItem.qml
    lists/WGridView.qml
    lists/WListView.qml
    lists/WPillTabBar.qml
    lists/WScrollHelper.qml
    lists/WSessionDelegate.qml
    lists/WTabBar.qml
    lists/WTabButton.qml
    menus/LKContextMenu.qml
    menus/LKContextMenuItem.qml
    menus/LKMenu.qml
    menus/LKMenuItem.qml
    menus/LKMenuSeparator.qml
    menus/WCoachmark.qml
    menus/WFTEDialog.qml
    menus/WMenu.qml
    menus/WMenuItem.qml
    menus/WMenuSeparator.qml
    menus/WPopupList.qml
    menus/WSystemToolTip.qml
    menus/WToolTip.qml
    scripts/DataUtils.js
    scripts/DrawUtils.js
    scripts/LayoutUtils.js
    scripts/ThemeUtils.js
    selection/LKCheckBox.qml
    selection/LKComboBox.qml
    selection/LKRadioButton.qml
    selection/LKSlider.qml
    selection/WCheckBox.qml
    selection/WComboBox.qml
    selection/WSlider.qml
    selection/WSwitch.qml
    text/LKLabelBase.qml
    text/LKShortcutsLabel.qml
    text/LKTextArea.qml
    text/LKTextAreaBase.qml
    text/LKTextField.qml
    text/LKTextFieldBase.qml
    text/LKTextInputField.qml
    text/WAccessibleLabel.qml
    text/WFlickableLineEdit.qml
    text/WFlickableTextEdit.qml
    text/WLabel.qml
    text/WLineEdit.qml
    text/WNamedValue.qml
    text/WSearchField.qml
    text/WText.qml
    text/WTextArea.qml
    text/WTextEdit.qml
    text/WTextEditElide.qml
    text/WTextEditElideMultiline.qml
    text/WTextEditLink.qml
    text/WTextElide.qml
    text/WTextField.qml
    text/WTextInput.qml
)
list(TRANSFORM LUMAKIT_QML_FILES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)

# The files that are types of the module LumakitQml 1.0, in the order of their registration; the other components are
# reached from files beside them or by URL. WMessagingListView has no file: the name is taken, using it fails.
set(LUMAKIT_QML_COMPONENTS
    AvatarListStandard ListItemBackground PeopleSummaryBricklet WAccessibleLabel WAvatar WButton
    WButtonsOverflowList WCheckBox WCircularProgressBar WCoachmark WComboBox WCoverImage WCursorItem
    WDialogButtonBox WDropShadow WDropShadowRect WDynamicImage WDynamicAnimatedImage WEmptyState
    WExpandableDelegate WExpandableListView WFade WFadeStates WFlickableLineEdit WFlickableTextEdit WFrame
    WFTEDialog WGifLabel WGradientRectangle WGradientRectangleRoundCorner WGridView WHyperlink WImage WItem
    WKeyButton WLabel WLineEdit WListView WMessagingListView WMenu WMenuItem WMenuSeparator WMessageBannerButton
    WMoveWindowArea WNamedValue WPane WPillButton WPillTabBar WPopupList WRectangle WResizeFrame WScrollHelper
    WSelfMessageAvatar WSearchField WSeparator WSessionDelegate WShortcut WSlider WSpinner WSplitView WSvgButton
    WSvgIcon WSvgIconButton WSvgImage WSvgSequenceAnimated WSvgSplitButton WSvgSplitIconButton WSvgSpinner
    WSwitch WSystemToolTip WTabBar WTabButton WTag WText WTextArea WTextEdit WTextEditElide
    WTextEditElideMultiline WTextEditLink WTextElide WTextField WTextInput WToolTip LKTextFieldBase
    LKTextAreaBase LKButtonBase LKToolButton LKLabelBase LKSvgResource DScrollBar
)
