# Every component and script, one folder a family; all land flat at qrc:/Qml.
set(LUMAKIT_QML_FILES
    constants/FontConstants.qml
    frames/WItem.qml
    frames/WRectangle.qml
    scripts/DataUtils.js
    scripts/DrawUtils.js
    scripts/LayoutUtils.js
    scripts/ThemeUtils.js
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
