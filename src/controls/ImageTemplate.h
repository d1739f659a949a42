#pragma once

#include "ControlState.h"
#include "IconImage.h"
#include "StateColor.h"

#include <QPointer>

#include <memory>

/// An image with a spinner while it loads, that also shows SVG files of the host's resources by name: the images and
/// icons of the library without a binding for each part.
class ImageTemplate : public IconImage, private ControlState::User
{
    Q_OBJECT
    /// Whether a spinner stands in the image's place while that is loading.
    Q_PROPERTY(bool hasSpinner READ hasSpinner WRITE setHasSpinner NOTIFY hasSpinnerChanged)
    Q_PROPERTY(bool isSpinnerVisible READ isSpinnerVisible NOTIFY isSpinnerVisibleChanged)
    /// null while there is none.
    Q_PROPERTY(QQuickItem *spinner READ spinner NOTIFY isSpinnerVisibleChanged)
    /// For large pictures, device pixels: the source size is the item's, enlarged until its longest side is a multiple
    /// of it, so that a change of scale rarely loads anew; a square for what is cropped. 0 leaves the source size
    /// alone.
    Q_PROPERTY(int sourceSizeStep READ sourceSizeStep WRITE setSourceSizeStep NOTIFY sourceSizeStepChanged)
    /// ":/Resources/<svgName>.svg" at the size of the item. Empty leaves the source alone.
    Q_PROPERTY(QString svgName READ svgName WRITE setSvgName NOTIFY svgNameChanged)
    /// The SVG is painted in `iconColors`, otherwise in its own colours. Set it once.
    Q_PROPERTY(bool isIcon READ isIcon WRITE setIcon NOTIFY isIconChanged)
    Q_PROPERTY(StateColor *iconColors READ iconColors CONSTANT)
    /// "#rrggbb", with an alpha "#aarrggbb".
    Q_PROPERTY(QString iconColorName READ iconColorName NOTIFY iconColorNameChanged)

public:
    explicit ImageTemplate(QQuickItem *parent = nullptr);
    ~ImageTemplate() override;

    bool hasSpinner() const;
    void setHasSpinner(bool hasSpinner);

    bool isSpinnerVisible() const;
    QQuickItem *spinner() const;

    int sourceSizeStep() const;
    void setSourceSizeStep(int step);

    QString svgName() const;
    void setSvgName(const QString &name);

    bool isIcon() const;
    void setIcon(bool isIcon);

    StateColor *iconColors();
    QString iconColorName();

    void setSource(const QUrl &url) override;
    void setSourceSize(const QSize &size) override;

Q_SIGNALS:
    void hasSpinnerChanged();
    void isSpinnerVisibleChanged();
    void sourceSizeStepChanged();
    void svgNameChanged();
    void isIconChanged();
    void iconColorNameChanged();

protected:
    void componentComplete() override;
    void connectNotify(const QMetaMethod &signal) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    struct Icon
    {
        explicit Icon(ControlState::User *user)
            : state(user)
        {
        }

        ControlState state;
        StateColor color{&state, StateColor::Normal};
    };

    void showColors() override;

    Icon &icon();
    bool isReady() const;
    QUrl svgUrl();
    void updateSource();
    void updateSourceSize();
    void updateSpinner();
    void placeSpinner();

    QString m_svgName;
    std::unique_ptr<Icon> m_icon;
    QPointer<QQuickItem> m_spinner;
    int m_sourceSizeStep = 0;
    bool m_hasSpinner = false;
    bool m_isSpinnerVisible = false;
    bool m_isIcon = false;
    bool m_isCompleting = false;
    bool m_ownsSource = false; // somebody has set it; likewise the size
    bool m_ownsSourceSize = false;
};
