#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>

/// Shows a tooltip after half a second of the cursor over an item, or of the keyboard's focus on it. Without a text it
/// does nothing.
class ToolTipTrigger : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    /// Plain text.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// The item that the tooltip is for; the item that the trigger is declared in, if none is set.
    Q_PROPERTY(QQuickItem *target READ target WRITE setTarget NOTIFY targetChanged)

public:
    explicit ToolTipTrigger(QObject *parent = nullptr);
    ~ToolTipTrigger() override;

    QString text() const;
    void setText(const QString &text);

    QQuickItem *target() const;
    void setTarget(QQuickItem *target);

    bool eventFilter(QObject *watched, QEvent *event) override;
    void classBegin() override;
    void componentComplete() override;

Q_SIGNALS:
    void textChanged();
    void targetChanged();

protected:
    void timerEvent(QTimerEvent *event) override;

private Q_SLOTS:
    void acceptHover();

private:
    void watch();
    void hide();

    QString m_text;
    QPointer<QQuickItem> m_target;
    QBasicTimer m_timer;
    bool m_watching = false;
    bool m_shown = false;
};
