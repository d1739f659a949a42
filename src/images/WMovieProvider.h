#pragma once

#include "IWMovieProviderSource.h"

#include <QMovie>
#include <QObject>
#include <QPointer>
#include <QString>
#include <qqmlintegration.h>

/// Fetches one animated image for QML from the application's movie source, and says what to show meanwhile.
///
/// Results for other sources are ignored. Without an IWApplication, or where it has no movie source, nothing arrives.
class LUMAKITQML_EXPORT WMovieProvider : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The page to show: 0 waiting, 1 the movie, 2 the fallback image.
    Q_PROPERTY(int stackIndex MEMBER m_stackIndex NOTIFY stackIndexChanged)
    /// The movie that arrived, owned by the provider; null before.
    Q_PROPERTY(QMovie *movie READ movie WRITE setMovie NOTIFY movieChanged)
    /// The image to show when the movie cannot be had.
    Q_PROPERTY(QString fallbackSource MEMBER m_fallbackSource NOTIFY fallbackSourceChanged)

public:
    explicit WMovieProvider(QObject *parent = nullptr);
    ~WMovieProvider() override;

    QMovie *movie() const;
    void setMovie(QMovie *movie);

    /// Asks for a source; what arrives for an earlier one is ignored from now on.
    Q_INVOKABLE void fetch(const QString &source);

Q_SIGNALS:
    void stackIndexChanged();
    void movieChanged();
    void fallbackSourceChanged();

private Q_SLOTS:
    void onMovieFetched(WMovie *movie, const QString &source);
    void onMovieFetchFailed(const QString &fallbackSource, const QString &source);

private:
    void showPage(int stackIndex);

    int m_stackIndex = 0;
    QPointer<QMovie> m_movie;
    QString m_fallbackSource;
    QString m_requestedSource;
    QPointer<IWMovieProviderSource> m_source;
};
