#pragma once

#include "LKButtonColors.h"

#include <QPointer>
#include <QQuickItem>
#include <QString>

#include <array>

class QQuickImage;
class QQuickText;

/// The content of a button, centred: up to two icons with the text between them, in the colour, font and sizes of its
/// button data. Icons and text that are not there have no item. Plain text, elided where it does not fit.
class ButtonContent : public QQuickItem
{
    Q_OBJECT
    /// The button data; an LKPillButtonData, LKRoundButtonData or LKIconButtonData. Set it once.
    Q_PROPERTY(QObject *buttonData READ buttonData WRITE setButtonData NOTIFY buttonDataChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// Names of icons; empty for none.
    Q_PROPERTY(QString leftIcon READ leftIcon WRITE setLeftIcon NOTIFY leftIconChanged)
    Q_PROPERTY(QString rightIcon READ rightIcon WRITE setRightIcon NOTIFY rightIconChanged)

public:
    explicit ButtonContent(QQuickItem *parent = nullptr);
    ~ButtonContent() override;

    QObject *buttonData() const;
    void setButtonData(QObject *buttonData);

    QString text() const;
    void setText(const QString &text);

    QString leftIcon() const;
    void setLeftIcon(const QString &name);

    QString rightIcon() const;
    void setRightIcon(const QString &name);

Q_SIGNALS:
    void buttonDataChanged();
    void textChanged();
    void leftIconChanged();
    void rightIconChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void updatePolish() override;

private:
    enum Side { Left, Right };

    void setIcon(Side side, const QString &name);
    void refreshIcon(Side side);
    void refreshText();
    void refreshColor();
    void refreshAll();
    void updateMetrics();
    bool isMirrored() const;

    QPointer<LKButtonColors> m_data;
    std::array<QString, 2> m_iconNames;
    std::array<QQuickImage *, 2> m_icons = {};
    QQuickText *m_label = nullptr;
    QString m_text;
    double m_spacing = 0;
};
