#include <ComponentTest.h>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QBuffer>

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface *accessible(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

void pressAccessible(QObject *object)
{
    accessible(object)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

QColor colorOf(const QObject *object, const char *property = "color")
{
    return object->property(property).value<QColor>();
}

QQuickItem *itemOf(const QObject *object, const char *property)
{
    return object->property(property).value<QQuickItem *>();
}

// The visible items, however deep, that have the property.
QList<QQuickItem *> itemsWith(const QQuickItem *parent, const char *property)
{
    QList<QQuickItem *> items;
    for (QQuickItem *child : parent->childItems()) {
        if (child->isVisible() && child->metaObject()->indexOfProperty(property) >= 0)
            items += child;
        items += itemsWith(child, property);
    }
    return items;
}

// The visible controls that can be clicked.
QList<QQuickItem *> buttonsIn(const QQuickItem *parent)
{
    return itemsWith(parent, "autoRepeat");
}

bool showsText(const QQuickItem *parent, const QString &text)
{
    const QList<QQuickItem *> items = itemsWith(parent, "text");
    return std::any_of(items.begin(), items.end(),
                       [&](const QQuickItem *item) { return item->property("text").toString() == text; });
}

} // namespace

class tst_LkBanners : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void badgeText_data();
    void badgeText();
    void badgeSize();
    void badgeColors_data();
    void badgeColors();
    void indicator_data();
    void indicator();
    void indicatorOnAChosenRow();
    void tagColors_data();
    void tagColors();
    void meetingMarker_data();
    void meetingMarker();

    void alertBannerTypes_data();
    void alertBannerTypes();
    void alertBannerSignals();
    void alertBannerButtonWithoutAFunction();
    void alertBannerHeight();
    void alertBannerParts_data();
    void alertBannerParts();
    void alertBannerMirrors_data();
    void alertBannerMirrors();
    void alertBannerIsAccessible_data();
    void alertBannerIsAccessible();

    void bannerSignals();
    void bannerParts_data();
    void bannerParts();
    void bannerColors();

    void fileTexts();
    void fileIcon_data();
    void fileIcon();
    void fileProgress_data();
    void fileProgress();
    void fileSignals();
    void failedFile();
    void fileIsAccessible();

    void svgResource_data();
    void svgResource();
    void svgResourceIsDimmed();

    void avatarGroupLayout_data();
    void avatarGroupLayout();
    void avatarGroupMirrors();
    void avatarGroupContacts();
    void avatarGroupColors();

private:
    QQuickItem *showIt(const QByteArray &qml)
    {
        show("Item { width: 640; height: 300; " + qml + " }");
        return find(u"it"_s);
    }

    // A colour of a badge's indicator in the present theme.
    static QColor indicatorColor(const QString &type)
    {
        return application()->getColorSet(u"badge-%1-indicator"_s.arg(type)).normal;
    }
};

void tst_LkBanners::badgeText_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("label");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("zero") << QByteArray("text: '0'") << u"0"_s;
    QTest::newRow("a number") << QByteArray("text: '7'") << u"7"_s;
    QTest::newRow("the maximum") << QByteArray("text: '99'") << u"99"_s;
    QTest::newRow("above the maximum") << QByteArray("text: '100'") << u"99+"_s;
    QTest::newRow("another maximum") << QByteArray("text: '10'; maxNumber: 9") << u"9+"_s;
    QTest::newRow("no maximum") << QByteArray("text: '1000'; maxNumber: 0") << u"1000"_s;
    QTest::newRow("a negative number") << QByteArray("text: '-100'") << u"-100"_s;
    QTest::newRow("a word") << QByteArray("text: 'New'") << u"New"_s;
    QTest::newRow("a word with a number") << QByteArray("text: '100 new'") << u"100 new"_s;
}

void tst_LkBanners::badgeText()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, label);
    auto *badge = showIt("LKBadge { objectName: 'it'; " + properties + " }");
    QVERIFY(badge);
    QCOMPARE(badge->property("labelText").toString(), label);
    QCOMPARE(showsText(badge, label), true);
    QCOMPARE(accessible(badge)->text(QAccessible::Name), label);
    QCOMPARE(badge->property("radius").toReal(), badge->height() / 2);
}

void tst_LkBanners::badgeSize()
{
    auto *badge = showIt("LKBadge { objectName: 'it' }");
    QCOMPARE(badge->size(), QSizeF(8, 8)); // a dot
    badge->setProperty("text", u"1"_s);
    QCOMPARE(badge->width(), badge->height());
    const double height = badge->height();
    badge->setProperty("text", u"120"_s);
    QCOMPARE_GT(badge->width(), height);
    QCOMPARE(badge->height(), height);
    application()->setFontScaleFactor(1.5F);
    QTRY_COMPARE_GT(badge->height(), height);
    QVERIFY(!itemsWith(badge, "truncated").constFirst()->property("truncated").toBool());
}

void tst_LkBanners::badgeColors_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("family");
    QTest::newRow("primary") << QByteArray("Primary") << u"badge-"_s;
    QTest::newRow("secondary") << QByteArray("Secondary") << u"badge-secondary-"_s;
}

void tst_LkBanners::badgeColors()
{
    QFETCH(const QByteArray, type);
    QFETCH(const QString, family);
    auto *badge = showIt("LKBadge { objectName: 'it'; text: '3'; badgeType: LKBadge." + type + " }");
    QVERIFY(badge);
    const auto *text = itemsWith(badge, "truncated").constFirst();
    QCOMPARE(colorOf(badge), application()->getColorSet(family + u"background"_s).normal);
    QCOMPARE(colorOf(text), application()->getColorSet(family + u"text"_s).normal);
    badge->setEnabled(false);
    QCOMPARE(colorOf(badge), application()->getColorSet(family + u"background"_s).disabled);
    QCOMPARE(colorOf(text), application()->getColorSet(family + u"text"_s).disabled);
}

void tst_LkBanners::indicator_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const char *type : {"Notification", "Caution", "Error", "Recording", "Success", "Warning"})
        QTest::newRow(type) << QByteArray(type);
}

// Error too, which is the name of another value of an image.
void tst_LkBanners::indicator()
{
    QFETCH(const QByteArray, type);
    auto *badge = showIt("LKIndicatorBadge { objectName: 'it'; indicatorType: LKIndicatorBadge." + type + " }");
    QVERIFY(badge);
    QCOMPARE(colorOf(badge, "svgColor"), indicatorColor(QString::fromLatin1(type.toLower())));
    QVERIFY(!badge->property("svgName").toString().isEmpty());
    QCOMPARE(badge->size(), QSizeF(16, 16));
    QTRY_COMPARE(badge->property("status").toInt(), 1); // the icon is there
}

void tst_LkBanners::indicatorOnAChosenRow()
{
    auto *badge = showIt("LKIndicatorBadge { objectName: 'it'; svgColorSetName: 'listitem-tick' }");
    QVERIFY(badge);
    const WColorSet colors = application()->getColorSet(u"listitem-tick"_s);
    QVERIFY(colors.checked != colors.normal);
    QCOMPARE(colorOf(badge, "svgColor"), colors.normal);
    badge->setProperty("isSelected", true);
    QCOMPARE(colorOf(badge, "svgColor"), colors.checked);
    badge->setEnabled(false);
    QCOMPARE(colorOf(badge, "svgColor"), colors.disabled);
}

void tst_LkBanners::tagColors_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("color");
    for (const char *type : {"Static", "Primary", "Error", "Overlay", "Cobalt", "Gold", "Lime", "Mint", "Orange",
                             "Purple", "Slate", "Violet"})
        QTest::newRow(type) << QByteArray("LKTag.") + type << QString::fromLatin1(type).toLower();
    QTest::newRow("no type") << QByteArray("99") << u"static"_s;
}

void tst_LkBanners::tagColors()
{
    QFETCH(const QByteArray, type);
    QFETCH(const QString, color);
    auto *tag = showIt("LKTag { objectName: 'it'; text: 'Tag'; type: " + type + " }");
    QVERIFY(tag);
    const auto colors = [&](const char *part) {
        return application()->getColorSet(u"tags-%1-%2"_s.arg(color, QLatin1StringView(part)));
    };
    QCOMPARE(colorOf(tag, "textColor"), colors("text").normal);
    QCOMPARE(colorOf(itemOf(tag, "background")), colors("background").normal);
    QCOMPARE(itemOf(tag, "background")->property("border").value<QObject *>()->property("color").value<QColor>(),
             colors("border").normal);
}

void tst_LkBanners::meetingMarker_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("colorSet");
    for (const char *type : {"Default", "Active", "Inactive"})
        QTest::newRow(type) << QByteArray(type)
                            << u"meetingmarker-%1-background"_s.arg(QString::fromLatin1(type).toLower());
}

void tst_LkBanners::meetingMarker()
{
    QFETCH(const QByteArray, type);
    QFETCH(const QString, colorSet);
    auto *marker = showIt("LKMeetingMarker { objectName: 'it'; markerType: LKMeetingMarker." + type + " }");
    QVERIFY(marker);
    for (const QString &mode : {u"default"_s, u"dark"_s}) {
        application()->setThemeMode(mode);
        QCOMPARE(colorOf(marker), application()->getColorSet(colorSet).normal);
    }
}

void tst_LkBanners::alertBannerTypes_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("color");
    for (const char *type : {"Announcement", "Error", "Issue", "Success", "Transient"})
        QTest::newRow(type) << QByteArray("LKAlertBanner.") + type << QString::fromLatin1(type).toLower();
    QTest::newRow("no type") << QByteArray("99") << u"announcement"_s;
}

void tst_LkBanners::alertBannerTypes()
{
    QFETCH(const QByteArray, type);
    QFETCH(const QString, color);
    auto *banner = showIt("LKAlertBanner { objectName: 'it'; text: 'Text'; bannerType: " + type + " }");
    QVERIFY(banner);
    const WColorSet background = application()->getColorSet(u"banner-%1-background"_s.arg(color));
    const WColorSet text = application()->getColorSet(u"banner-%1-text"_s.arg(color));
    QCOMPARE(colorOf(itemOf(banner, "background")), background.normal);
    const auto *icon = itemsWith(banner, "svgColor").constFirst();
    QCOMPARE(colorOf(icon, "svgColor"), text.normal);
    moveMouseTo(banner); // only a banner that can be clicked shows that
    QCOMPARE(colorOf(itemOf(banner, "background")), background.normal);
    banner->setProperty("interactive", true);
    QTRY_COMPARE(colorOf(itemOf(banner, "background")), background.hovered);
    banner->setEnabled(false);
    QCOMPARE(colorOf(itemOf(banner, "background")), background.disabled);
    QCOMPARE(colorOf(icon, "svgColor"), text.disabled);
}

void tst_LkBanners::alertBannerSignals()
{
    auto *banner =
        showIt("LKAlertBanner { objectName: 'it'; width: 600; text: 'Text'; buttonText: 'Retry'; property int "
               "calls: 0; onButtonClicked: () => ++calls }");
    QVERIFY(banner);
    QSignalSpy clicked(banner, SIGNAL(clicked()));
    QSignalSpy dismissed(banner, SIGNAL(bannerDismissed()));
    const QList<QQuickItem *> buttons = buttonsIn(banner);
    QCOMPARE(buttons.size(), 2);
    click(buttons[0]);
    QCOMPARE(banner->property("calls").toInt(), 1);
    press(Qt::Key_Escape); // the focus is in the banner
    QCOMPARE(dismissed.count(), 1);
    click(buttons[1]);
    QCOMPARE(dismissed.count(), 2);
    QCOMPARE(banner->property("calls").toInt(), 1);

    click(banner, {200, 20});
    QCOMPARE(clicked.count(), 0);
    banner->setProperty("interactive", true);
    click(banner, {200, 20});
    QCOMPARE(clicked.count(), 1);
    banner->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Enter, Qt::Key_Return})
        press(key);
    QCOMPARE(clicked.count(), 4);
    click(buttons[0]);
    QCOMPARE(clicked.count(), 4);
    banner->setProperty("closeButtonVisible", false);
    banner->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Escape);
    QCOMPARE(dismissed.count(), 2);
}

void tst_LkBanners::alertBannerButtonWithoutAFunction()
{
    auto *banner =
        showIt("LKAlertBanner { objectName: 'it'; width: 600; buttonText: 'Retry'; buttonTooltip: 'Try again' }");
    QVERIFY(banner);
    QCOMPARE(banner->property("onButtonClicked").value<QObject *>(), nullptr);
    auto *button = buttonsIn(banner).constFirst();
    QCOMPARE(button->property("tooltip").toString(), u"Try again"_s);
    click(button);
}

void tst_LkBanners::alertBannerHeight()
{
    auto *banner = showIt("LKAlertBanner { objectName: 'it'; width: 300; text: 'Text'; bannerHeight: 48 }");
    QVERIFY(banner);
    QCOMPARE(banner->height(), 48.0);
    banner->setProperty("text", u"A text of several lines. "_s.repeated(8));
    QTRY_COMPARE_GT(banner->height(), 60.0);
    for (const QQuickItem *text : itemsWith(banner, "truncated")) {
        QVERIFY(!text->property("truncated").toBool());
        QCOMPARE_LE(text->mapToItem(banner, QPointF(0, text->height())).y(), banner->height());
    }
}

void tst_LkBanners::alertBannerParts_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("icons");
    QTest::newRow("a text") << QByteArray("text: 'A'; closeButtonVisible: false; iconName: ''") << 0 << 0;
    QTest::newRow("an icon") << QByteArray("text: 'A'; closeButtonVisible: false") << 0 << 1;
    QTest::newRow("close") << QByteArray("text: 'A'") << 1 << 2;
    QTest::newRow("a button") << QByteArray("text: 'A'; buttonText: 'Do'") << 2 << 2;
}

void tst_LkBanners::alertBannerParts()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const int, buttons);
    QFETCH(const int, icons);
    auto *banner = showIt("LKAlertBanner { objectName: 'it'; " + properties + " }");
    QVERIFY(banner);
    QCOMPARE(buttonsIn(banner).size(), buttons);
    QCOMPARE(itemsWith(banner, "svgName").size(), icons);
}

void tst_LkBanners::alertBannerMirrors_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("isMirrored");
    QTest::newRow("left to right") << false << true << false;
    QTest::newRow("right to left") << true << true << true;
    QTest::newRow("right to left, not taking part") << true << false << false;
}

void tst_LkBanners::alertBannerMirrors()
{
    QFETCH(const bool, mirrored);
    QFETCH(const bool, enabled);
    QFETCH(const bool, isMirrored);
    const auto boolean = [](bool value) { return QByteArray(value ? "true" : "false"); };
    auto *banner = showIt("LayoutMirroring.enabled: " + boolean(mirrored)
                          + "; LayoutMirroring.childrenInherit: true; "
                            "LKAlertBanner { objectName: 'it'; width: 600; text: 'A'; mirroringEnabled: "
                          + boolean(enabled) + " }");
    QVERIFY(banner);
    const auto *close = buttonsIn(banner).constFirst();
    QTRY_COMPARE(close->mapToItem(banner, QPointF(close->width() / 2, 0)).x() < 300, isMirrored);
}

void tst_LkBanners::alertBannerIsAccessible_data()
{
    QTest::addColumn<bool>("interactive");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<int>("clicks");
    QTest::newRow("a message") << false << QAccessible::AlertMessage << 0;
    QTest::newRow("a button") << true << QAccessible::Button << 1;
}

void tst_LkBanners::alertBannerIsAccessible()
{
    QFETCH(const bool, interactive);
    QFETCH(const QAccessible::Role, role);
    QFETCH(const int, clicks);
    auto *banner = showIt("LKAlertBanner { objectName: 'it'; text: 'No connection' }");
    QVERIFY(banner);
    banner->setProperty("interactive", interactive);
    QCOMPARE(accessible(banner)->role(), role);
    QCOMPARE(accessible(banner)->text(QAccessible::Name), u"No connection"_s);
    QSignalSpy clicked(banner, SIGNAL(clicked()));
    pressAccessible(banner);
    QCOMPARE(clicked.count(), clicks);
}

void tst_LkBanners::bannerSignals()
{
    auto *banner = showIt("LKBanner { objectName: 'it'; width: 500; headerText: 'Header'; subText: 'Text'; "
                          "actionButtonText: 'Do'; closeButtonTooltip: 'Close' }");
    QVERIFY(banner);
    QSignalSpy action(banner, SIGNAL(bannerActionButtonClicked()));
    QSignalSpy close(banner, SIGNAL(bannerCloseButtonClicked()));
    QSignalSpy clicked(banner, SIGNAL(clicked()));
    const QList<QQuickItem *> buttons = buttonsIn(banner);
    QCOMPARE(buttons.size(), 2);
    QCOMPARE(accessible(buttons[1])->text(QAccessible::Name), u"Close"_s);
    click(buttons[0]);
    QCOMPARE(action.count(), 1);
    click(buttons[1]);
    QCOMPARE(close.count(), 1);
    press(Qt::Key_Escape);
    QCOMPARE(close.count(), 2);
    click(banner, {300, 20});
    QCOMPARE(clicked.count(), 0);
    banner->setProperty("interactive", true);
    click(banner, {300, 20});
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(action.count(), 1);

    banner->setProperty("actionButtonEnabled", false);
    banner->setProperty("closeButtonEnabled", false);
    QVERIFY(!buttons[0]->isEnabled());
    QVERIFY(!buttons[1]->isEnabled());
    press(Qt::Key_Escape);
    QCOMPARE(close.count(), 2);
}

void tst_LkBanners::bannerParts_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<bool>("header");
    QTest::addColumn<bool>("text");
    QTest::newRow("header") << QByteArray("headerText: 'Header'") << 1 << true << false;
    QTest::newRow("text") << QByteArray("subText: 'Text'; closeButtonVisible: false") << 0 << false << true;
    QTest::newRow("both and a button") << QByteArray("headerText: 'Header'; subText: 'Text'; actionButtonText: 'Do'")
                                       << 2 << true << true;
    QTest::newRow("the button is hidden")
        << QByteArray("headerText: 'Header'; actionButtonText: 'Do'; actionButtonVisible: false") << 1 << true << false;
}

void tst_LkBanners::bannerParts()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const int, buttons);
    QFETCH(const bool, header);
    QFETCH(const bool, text);
    auto *banner = showIt("LKBanner { objectName: 'it'; " + properties + " }");
    QVERIFY(banner);
    const auto *content = itemOf(banner, "banner");
    const auto *layout = itemOf(content, "contentItem");
    QCOMPARE(buttonsIn(banner).size(), buttons);
    QCOMPARE(showsText(layout, u"Header"_s), header);
    QCOMPARE(showsText(layout, u"Text"_s), text);
    QCOMPARE(banner->size(), QSizeF(banner->implicitWidth(), banner->implicitHeight()));
    const QString name = header ? u"Header"_s : u"Text"_s;
    QCOMPARE(accessible(itemOf(banner, "banner"))->text(QAccessible::Name), name);
}

void tst_LkBanners::bannerColors()
{
    auto *banner = showIt("LKBanner { objectName: 'it'; width: 300; headerText: 'Header'; bannerType: "
                          "LKAlertBanner.Success; iconName: 'heart'; interactive: true }");
    QVERIFY(banner);
    const WColorSet background = application()->getColorSet(u"banner-success-background"_s);
    moveMouseAway();
    QTRY_COMPARE(colorOf(banner), background.normal);
    moveMouseTo(banner);
    QTRY_COMPARE(colorOf(banner), background.hovered);
    QCOMPARE(itemsWith(banner, "svgName").constFirst()->property("svgName").toString(), u"heart"_s);
}

void tst_LkBanners::fileTexts()
{
    auto *file =
        showIt("LKFileItem { objectName: 'it'; width: 400; fileNameLabel: '<b>Minutes.pdf</b>'; fileSizeLabel: "
               "'240 KB'; publishedTimeLabel: '10:42' }");
    QVERIFY(file);
    QVERIFY(showsText(file, u"<b>Minutes.pdf</b>"_s));
    QVERIFY(showsText(file, u"240 KB · 10:42"_s));
    file->setProperty("senderNameLabel", u"Ada"_s);
    QVERIFY(showsText(file, u"240 KB · Ada · 10:42"_s));
}

void tst_LkBanners::fileIcon_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("colorSet");
    const auto row = [](const char *type, const char *family) {
        QTest::newRow(type) << QByteArray("LKFileItem.") + type
                            << u"attachment-file-%1"_s.arg(QLatin1StringView(family));
    };
    for (const char *type : {"Doc", "Word", "Excel", "PowerPoint", "OneNote", "Pdf", "Keynotes", "Sheets", "Slides"})
        row(type, QByteArray("branded-sent-previewBox-background-" + QByteArray(type).toLower()).constData());
    for (const char *type : {"File", "Image", "Video", "Audio", "Archive"})
        row(type, "default-sent-previewBox-background");
    QTest::newRow("no type") << QByteArray("99") << u"attachment-file-default-sent-previewBox-background"_s;
}

void tst_LkBanners::fileIcon()
{
    QFETCH(const QByteArray, type);
    QFETCH(const QString, colorSet);
    auto *file = showIt("LKFileItem { objectName: 'it'; iconType: " + type + " }");
    QVERIFY(file);
    QCOMPARE(file->property("iconBackgroundColorSet").value<WColorSet>(), application()->getColorSet(colorSet));
    const auto *icon = itemsWith(file, "svgName").constFirst();
    QCOMPARE(colorOf(icon->parentItem()), application()->getColorSet(colorSet).normal);
    QTRY_COMPARE(icon->property("status").toInt(), 1); // the icon is there
}

void tst_LkBanners::fileProgress_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<double>("fraction");
    QTest::addColumn<QString>("icon");
    QTest::newRow("none") << QByteArray() << false << 0.0 << QString();
    QTest::newRow("an upload begins") << QByteArray("uploadProgress: 0") << true << 0.0 << u"upload"_s;
    QTest::newRow("an upload") << QByteArray("uploadProgress: 60") << true << 0.6 << u"upload"_s;
    QTest::newRow("a download") << QByteArray("downloadProgress: 25") << true << 0.25 << u"download"_s;
    QTest::newRow("too much") << QByteArray("downloadProgress: 120") << true << 1.0 << u"download"_s;
}

void tst_LkBanners::fileProgress()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const bool, shown);
    QFETCH(const double, fraction);
    QFETCH(const QString, icon);
    auto *file = showIt("LKFileItem { objectName: 'it'; width: 400; fileNameLabel: 'A'; " + properties + " }");
    QVERIFY(file);
    const QList<QQuickItem *> lines = itemsWith(file, "fraction");
    QCOMPARE(lines.size(), shown ? 1 : 0);
    QCOMPARE(buttonsIn(file).size(), shown ? 2 : 1); // the file, and cancel
    if (!shown)
        return;
    QCOMPARE(lines[0]->property("fraction").toDouble(), fraction);
    QCOMPARE(itemsWith(lines[0], "svgName").constFirst()->property("svgName").toString(), icon);
    const QList<QQuickItem *> bars = itemsWith(lines[0], "backgroundColorSetName");
    QCOMPARE(bars.size(), 2);
    QTRY_COMPARE(bars[1]->width(), std::round(bars[0]->width() * fraction));
    QCOMPARE(accessible(lines[0])->role(), QAccessible::ProgressBar);
}

void tst_LkBanners::fileSignals()
{
    auto *file = showIt("LKFileItem { objectName: 'it'; width: 400; fileNameLabel: 'A'; uploadProgress: 60 }");
    QVERIFY(file);
    QSignalSpy clicked(file, SIGNAL(clicked()));
    QSignalSpy cancel(file, SIGNAL(cancelClicked()));
    const QList<QQuickItem *> buttons = buttonsIn(file);
    click(buttons[0], {100, 20});
    QCOMPARE(clicked.count(), 1);
    click(buttons[1]);
    QCOMPARE(cancel.count(), 1);
    QCOMPARE(clicked.count(), 1);
    buttons[0]->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(clicked.count(), 2);
    file->setEnabled(false);
    click(buttons[0], {100, 20});
    QCOMPARE(clicked.count(), 2);
}

void tst_LkBanners::failedFile()
{
    auto *file = showIt("LKFileItem { objectName: 'it'; width: 400; fileNameLabel: 'A'; retryButtonText: 'Retry' }");
    QVERIFY(file);
    QCOMPARE(itemsWith(file, "bannerType").size(), 0);
    file->setProperty("fileTransferFailedBannerText", u"Not sent"_s);
    file->setProperty("fileTransferFailedBannerType", 2);
    const QList<QQuickItem *> banners = itemsWith(file, "bannerType");
    QCOMPARE(banners.size(), 1);
    QCOMPARE(banners[0]->property("text").toString(), u"Not sent"_s);
    QCOMPARE(banners[0]->property("bannerType").toInt(), 2);
    QTRY_COMPARE(banners[0]->width(), 400.0);
    QSignalSpy retry(file, SIGNAL(retryClicked()));
    QSignalSpy dismissed(file, SIGNAL(bannerDismissed()));
    QSignalSpy clicked(file, SIGNAL(clicked()));
    const QList<QQuickItem *> buttons = buttonsIn(banners[0]);
    QTRY_COMPARE_GT(buttons[0]->mapToScene({}).y(), 50.0);
    click(buttons[0]);
    click(buttons[1]);
    QCOMPARE(retry.count(), 1);
    QCOMPARE(dismissed.count(), 1);
    QCOMPARE(clicked.count(), 0);
}

void tst_LkBanners::fileIsAccessible()
{
    auto *file = showIt("LKFileItem { objectName: 'it'; fileNameLabel: 'A.pdf'; fileSizeLabel: '1 MB' }");
    QVERIFY(file);
    auto *button = accessible(buttonsIn(file).constFirst());
    QCOMPARE(button->role(), QAccessible::Button);
    QCOMPARE(button->text(QAccessible::Name), u"A.pdf"_s);
    QCOMPARE(button->text(QAccessible::Description), u"1 MB"_s);
    QSignalSpy clicked(file, SIGNAL(clicked()));
    pressAccessible(buttonsIn(file).constFirst());
    QCOMPARE(clicked.count(), 1);
}

void tst_LkBanners::svgResource_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("source");
    QTest::newRow("an icon") << QByteArray("svgName: 'list'; svgColor: '#102030'") << u"image://svg/#102030/list"_s;
    QTest::newRow("no name") << QByteArray("svgColor: '#102030'") << QString();
    QTest::newRow("no colour") << QByteArray("svgName: 'list'; svgColor: 'transparent'") << QString();
    QTest::newRow("a PNG") << QByteArray("svgName: 'dot'; isPng: true") << u"qrc:/Resources/dot.png"_s;
    QTest::newRow("a PNG without a name") << QByteArray("isPng: true") << QString();
}

void tst_LkBanners::svgResource()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QString, source);
    QImage dot(2, 2, QImage::Format_RGB32);
    dot.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::WriteOnly) && dot.save(&buffer, "PNG"));
    const MemoryResources resources({{u"/Resources/dot.png"_s, bytes}});
    auto *image = showIt("LKSvgResource { objectName: 'it'; width: 24; height: 24; " + properties + " }");
    QVERIFY(image);
    QCOMPARE(image->property("source").toUrl().toString(), source);
    QTRY_COMPARE(image->property("status").toInt(), source.isEmpty() ? 0 : 1);
}

void tst_LkBanners::svgResourceIsDimmed()
{
    auto *image = showIt("LKSvgResource { objectName: 'it'; width: 24; height: 24; svgName: 'list' }");
    QVERIFY(image);
    QCOMPARE(colorOf(image, "svgColor"), application()->getColorSet(u"label-primary-text"_s).normal);
    QCOMPARE(image->opacity(), 1.0);
    image->setProperty("isEnabled", false);
    QCOMPARE_LT(image->opacity(), 0.6);
}

void tst_LkBanners::avatarGroupLayout_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("avatars");
    QTest::addColumn<QString>("overflow");
    QTest::addColumn<int>("width");
    QTest::newRow("nobody") << QByteArray() << 0 << QString() << 0;
    QTest::newRow("one") << QByteArray("avatarOneId: 'a'") << 1 << QString() << 32;
    QTest::newRow("two") << QByteArray("avatarOneId: 'a'; avatarTwoId: 'b'") << 2 << QString() << 52;
    QTest::newRow("one is missing") << QByteArray("avatarOneId: 'a'; avatarThreeId: 'c'") << 2 << QString() << 52;
    QTest::newRow("four") << QByteArray("avatarOneId: 'a'; avatarTwoId: 'b'; avatarThreeId: 'c'; avatarFourId: 'd'")
                          << 4 << QString() << 92;
    QTest::newRow("more") << QByteArray("avatarOneId: 'a'; avatarTwoId: 'b'; overflowCount: 3") << 2 << u"+3"_s << 72;
    QTest::newRow("far more") << QByteArray("avatarOneId: 'a'; overflowCount: 300") << 1 << u"+99"_s << 52;
    QTest::newRow("another place of the number")
        << QByteArray("avatarOneId: 'a'; overflowCount: 3; overflowOffset: 50") << 1 << u"+3"_s << 82;
    QTest::newRow("a negative number") << QByteArray("avatarOneId: 'a'; overflowCount: -1") << 1 << QString() << 32;
}

void tst_LkBanners::avatarGroupLayout()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const int, avatars);
    QFETCH(const QString, overflow);
    QFETCH(const int, width);
    auto *group = showIt("LKAvatarGroup { objectName: 'it'; avatarSize: 32; avatarOffset: 20; " + properties + " }");
    QVERIFY(group);
    const QList<QQuickItem *> items = itemsWith(group, "allowInteractions");
    QCOMPARE(items.size(), avatars);
    for (qsizetype i = 0; i < items.size(); ++i)
        QCOMPARE(items[i]->mapToItem(group, QPointF()), QPointF(20.0 * double(i), 0));
    QCOMPARE(overflow.isEmpty() || showsText(group, overflow), true);
    QCOMPARE(group->property("groupWidth").toInt(), width);
    QCOMPARE(group->implicitWidth(), width);
}

void tst_LkBanners::avatarGroupMirrors()
{
    QList<QRectF> places[2];
    for (const bool mirrored : {false, true}) {
        auto *group = showIt("LKAvatarGroup { objectName: 'it'; width: 200; avatarOneId: 'Ada'; avatarTwoId: 'Bob'; "
                             "overflowCount: 5; LayoutMirroring.enabled: "
                             + QByteArray(mirrored ? "true" : "false") + "; LayoutMirroring.childrenInherit: true }");
        QVERIFY(group);
        const QList<QQuickItem *> circles = itemsWith(group, "gradient"); // rings, avatars and the number
        QCOMPARE_GE(circles.size(), 4);
        for (const QQuickItem *circle : circles)
            places[mirrored] += group->mapRectFromItem(circle, QRectF(QPointF(), circle->size()));
    }
    QCOMPARE(places[1].size(), places[0].size());
    for (qsizetype i = 0; i < places[0].size(); ++i)
        QCOMPARE(places[1][i].x(), 200 - places[0][i].right());
}

void tst_LkBanners::avatarGroupContacts()
{
    auto *group =
        showIt("LKAvatarGroup { objectName: 'it'; avatarOneId: '1'; avatarTwoId: '2'; overflowCount: 5; "
               "contactOf: id => id === '1' ? { displayName: 'Ada Lovelace' } : { displayName: 'Grace Hopper' } "
               "}");
    QVERIFY(group);
    const QList<QQuickItem *> items = itemsWith(group, "allowInteractions");
    QCOMPARE(items[0]->property("displayName").toString(), u"Ada Lovelace"_s);
    QCOMPARE(items[1]->property("initials").toString(), u"GH"_s);
    QCOMPARE(accessible(group)->text(QAccessible::Name), u"Ada Lovelace, Grace Hopper, +5"_s);
    group->setProperty("contactOf", QVariant());
    QCOMPARE(itemsWith(group, "allowInteractions")[0]->property("displayName").toString(), u"1"_s);
}

// The misspelt name is the one that hosts use.
void tst_LkBanners::avatarGroupColors()
{
    auto *group = showIt("LKAvatarGroup { objectName: 'it'; avatarOneId: '1'; overflowCount: 5 }");
    QVERIFY(group);
    QCOMPARE(colorOf(group, "backgroundyNormal"),
             application()->getColorSet(u"avatar-color-avatar-background-default"_s).normal);
    QCOMPARE(colorOf(group, "textPrimaryNormal"), application()->getColorSet(u"avatar-color-avatar-text"_s).normal);
    group->setProperty("backgroundyNormal", QColor(Qt::red));
    const QList<QQuickItem *> rectangles = itemsWith(group, "gradient");
    QVERIFY(std::any_of(rectangles.begin(), rectangles.end(),
                        [](const QQuickItem *item) { return colorOf(item) == QColor(Qt::red); }));
}

LUMAKIT_TEST_MAIN(tst_LkBanners)
#include "tst_lk_banners.moc"
