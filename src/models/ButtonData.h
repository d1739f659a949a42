#pragma once

#include "ButtonDataItem.h"

#include <QObject>
#include <QString>
#include <QStringList>

/// Describes one button of a row or an overflow list. Every property that changes emits updated().
class LUMAKITQML_EXPORT ButtonData : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool visible READ visible WRITE setVisible NOTIFY updated)
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY updated)
    Q_PROPERTY(bool checked READ checked WRITE setChecked NOTIFY updated)
    Q_PROPERTY(bool hasArrow READ hasArrow WRITE setHasArrow NOTIFY updated)
    Q_PROPERTY(
        QString backgroundColorSetName READ backgroundColorSetName WRITE setBackgroundColorSetName NOTIFY updated)
    Q_PROPERTY(QString borderColorSetName READ borderColorSetName WRITE setBorderColorSetName NOTIFY updated)
    Q_PROPERTY(QString iconName READ iconName WRITE setIconName NOTIFY updated)
    Q_PROPERTY(QString iconColorSetName READ iconColorSetName WRITE setIconColorSetName NOTIFY updated)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY updated)
    Q_PROPERTY(QString textColorSetName READ textColorSetName WRITE setTextColorSetName NOTIFY updated)
    Q_PROPERTY(QString tooltip READ tooltip WRITE setTooltip NOTIFY updated)
    Q_PROPERTY(QString accessibleName READ accessibleName WRITE setAccessibleName NOTIFY updated)
    Q_PROPERTY(QString moreButtonTooltip READ moreButtonTooltip WRITE setMoreButtonTooltip NOTIFY updated)
    Q_PROPERTY(QStringList textVector READ textVector WRITE setTextVector NOTIFY updated)

public:
    /// The roles under which a model shows the fields of a button.
    enum Role : int {
        Colour = Qt::UserRole + 1,
        Enabled,
        IconName,
        State,
        Text,
        Tooltip,
        Visible,
        Last = Visible, ///< marks the end, no role of its own
    };
    Q_ENUM(Role)

    /// Neither visible nor enabled, with an arrow, without texts.
    explicit ButtonData(QObject *parent = nullptr);
    /// With an arrow, and a text vector of two empty texts.
    ButtonData(bool visible, bool enabled, bool checked, const QString &backgroundColorSetName,
               const QString &borderColorSetName, const QString &iconName, const QString &iconColorSetName,
               const QString &text, const QString &textColorSetName, const QString &tooltip, QObject *parent = nullptr);
    ~ButtonData() override;

    bool visible() const;
    void setVisible(bool visible);

    bool enabled() const;
    void setEnabled(bool enabled);

    bool checked() const;
    void setChecked(bool checked);

    bool hasArrow() const;
    void setHasArrow(bool hasArrow);

    /// Colours are names of colour sets.
    QString backgroundColorSetName() const;
    void setBackgroundColorSetName(const QString &backgroundColorSetName);

    QString borderColorSetName() const;
    void setBorderColorSetName(const QString &borderColorSetName);

    QString iconName() const;
    void setIconName(const QString &iconName);

    QString iconColorSetName() const;
    void setIconColorSetName(const QString &iconColorSetName);

    QString text() const;
    void setText(const QString &text);

    QString textColorSetName() const;
    void setTextColorSetName(const QString &textColorSetName);

    QString tooltip() const;
    void setTooltip(const QString &tooltip);

    QString accessibleName() const;
    void setAccessibleName(const QString &accessibleName);

    QString moreButtonTooltip() const;
    void setMoreButtonTooltip(const QString &moreButtonTooltip);

    QStringList textVector() const;
    void setTextVector(const QStringList &textVector);

    /// A snapshot of visible, enabled, text and tooltip.
    ButtonDataItem item() const;

Q_SIGNALS:
    void updated();

private:
    template<typename Value> void update(Value &member, const Value &value);

    bool m_visible = false;
    bool m_enabled = false;
    bool m_checked = false;
    bool m_hasArrow = true;
    QString m_backgroundColorSetName;
    QString m_borderColorSetName;
    QString m_iconName;
    QString m_iconColorSetName;
    QString m_text;
    QString m_textColorSetName;
    QString m_tooltip;
    QString m_accessibleName;
    QString m_moreButtonTooltip;
    QStringList m_textVector;
};
