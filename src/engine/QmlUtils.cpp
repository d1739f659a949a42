#include "QmlUtils.h"

#include "IWApplication.h"

#include <QAccessible>
#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QKeySequence>
#include <QMimeData>
#include <QQuickWindow>
#include <QTextDocument>

#include <algorithm>
#include <array>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto HideDelay = 500ms;
constexpr auto ModifierKeys = std::to_array({Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta});

bool isFunctionKey(Qt::Key key)
{
    return key >= Qt::Key_F1 && key <= Qt::Key_F12;
}

bool isModifierKey(Qt::Key key)
{
    return std::ranges::find(ModifierKeys, key) != ModifierKeys.end();
}

QClipboard::Mode toQClipboardMode(QmlUtils::ClipboardMode mode)
{
    switch (mode) {
    case QmlUtils::Selection:
        return QClipboard::Selection;
    case QmlUtils::FindBuffer:
        return QClipboard::FindBuffer;
    default:
        return QClipboard::Clipboard;
    }
}

bool animationsDisabled()
{
    // By name: the answer is the host's own, at whichever level of the application classes it gives it.
    static const bool disabled = [] {
        bool answer = false;
        if (auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance()))
            QMetaObject::invokeMethod(application, "animationsDisabled", qReturnArg(answer));
        return answer;
    }();
    return disabled;
}

} // namespace

QmlUtils::QmlUtils(QObject *parent)
    : QObject(parent)
{
}

QmlUtils::~QmlUtils() = default;

bool QmlUtils::supportsLayers() const
{
    return QQuickWindow::sceneGraphBackend() != "software"_L1;
}

void QmlUtils::sayAccessible(QQuickItem *item)
{
    if (!item)
        return;
    QAccessibleEvent event(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void QmlUtils::hidePopupView(bool delay, bool force)
{
    cancelHidePopupTimer();
    if (animationsDisabled() || !delay) {
        closePopupView(force);
        return;
    }
    m_hideTimer.reset(new QTimer(this));
    m_hideTimer->setSingleShot(true);
    m_hideTimer->setInterval(HideDelay);
    connect(m_hideTimer.get(), &QTimer::timeout, this, [this, force] {
        m_hideTimer.reset();
        closePopupView(force);
    });
    m_hideTimer->start();
}

void QmlUtils::cancelHidePopupTimer()
{
    m_hideTimer.reset();
}

QString QmlUtils::pasteFromClipboard(PasteOutput option, ClipboardMode clipboardMode)
{
    const QClipboard::Mode mode = toQClipboardMode(clipboardMode);
    const QClipboard *clipboard = QGuiApplication::clipboard();
    if (!clipboard || (mode == QClipboard::Selection && !clipboard->supportsSelection()))
        return {};
    QString text = clipboard->text(mode);
    if (option == RichText)
        return text;
    QTextDocument document;
    document.setHtml(text);
    QString plainText = document.toPlainText();
    if (option == PlainTextNoLineBreaks)
        plainText.remove(u'\n');
    return plainText;
}

void QmlUtils::copyRichText(const QString &richText)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (!clipboard || richText.isEmpty())
        return;
    auto data = std::make_unique<QMimeData>();
    data->setText(richText); // as plain text, markup included: what pastes it sees the tags and nothing is lost
    clipboard->setMimeData(data.release());
}

QString QmlUtils::getKeySequence(Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    if (isFunctionKey(key))
        return QKeySequence(key).toString(QKeySequence::NativeText);
    if (!modifiers || isModifierKey(key))
        return {};
    QString text = QKeySequence(QKeyCombination(modifiers, key)).toString(QKeySequence::NativeText);
    return text.replace("Print"_L1, "PrtScn"_L1).replace("+"_L1, " + "_L1);
}

void QmlUtils::setPopupView(QWindow *popup)
{
    m_popupView = popup;
}

void QmlUtils::closePopupView(bool force)
{
    if (m_popupView && (force || !m_popupView->frameGeometry().contains(QCursor::pos())))
        m_popupView->close();
}

void QmlUtils::Release::operator()(QTimer *timer) const
{
    timer->stop();
    timer->deleteLater();
}
