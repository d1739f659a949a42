#pragma once

#include <LumakitQmlExport.h>

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QTimer>
#include <QWindow>
#include <qqmlintegration.h>

#include <memory>

/// What QML asks of the desktop: the clipboard, screen readers, the text of shortcuts, and closing the popup that is
/// up. QML knows it as the singleton `Utils`, one an engine. GUI thread only; nothing is reported.
class LUMAKITQML_EXPORT QmlUtils : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Utils)
    QML_SINGLETON

public:
    enum PasteOutput : int {
        PlainText, ///< without markup
        PlainTextNoLineBreaks, ///< without markup, and lines joined without a gap
        RichText, ///< as it stands
    };
    Q_ENUM(PasteOutput)

    /// The values of QClipboard::Mode; LastMode, and any other value, stands for Clipboard.
    enum ClipboardMode : int {
        Clipboard,
        Selection,
        FindBuffer,
        LastMode,
    };
    Q_ENUM(ClipboardMode)

    explicit QmlUtils(QObject *parent = nullptr);
    ~QmlUtils() override;

    /// The scene graph draws layer effects: its back end is not "software".
    Q_INVOKABLE bool supportsLayers() const;

    /// Tells screen readers that the item has the focus.
    Q_INVOKABLE void sayAccessible(QQuickItem *item);

    /// Closes the popup window; with `delay` after half a second, unless the application wants no animations (asked
    /// once a process). Without `force` a popup under the cursor stays open. A call replaces a pending one.
    Q_INVOKABLE void hidePopupView(bool delay, bool force);
    /// Forgets a delayed hidePopupView().
    Q_INVOKABLE void cancelHidePopupTimer();

    /// The clipboard's text; empty where there is no clipboard, or no selection to paste from.
    Q_INVOKABLE QString pasteFromClipboard(QmlUtils::PasteOutput option, QmlUtils::ClipboardMode clipboardMode);
    /// Copies the text; an empty one leaves the clipboard alone.
    Q_INVOKABLE void copyRichText(const QString &richText);

    /// The text to show for a shortcut, such as "Ctrl + A". A function key stands alone, whatever the modifiers. Empty
    /// for a key without modifiers and for a modifier that waits for its key.
    Q_INVOKABLE QString getKeySequence(Qt::KeyboardModifiers modifiers, Qt::Key key);

    /// The window that hidePopupView() closes. A popup view made by an engine sets itself on that engine's singleton
    /// when it is shown.
    void setPopupView(QWindow *popup);

private:
    struct Release
    {
        void operator()(QTimer *timer) const;
    };
    using Timer = std::unique_ptr<QTimer, Release>;

    void closePopupView(bool force);

    QPointer<QWindow> m_popupView;
    Timer m_hideTimer;
};
