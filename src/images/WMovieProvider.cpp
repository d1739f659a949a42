#include "WMovieProvider.h"

#include "IWApplication.h"
#include "WMovie.h"

#include <QDebug>

WMovieProvider::WMovieProvider(QObject *parent)
    : QObject(parent)
{
    auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance());
    m_source = application ? application->getMovieProviderSource() : nullptr;
    if (!m_source)
        return;
    connect(m_source, &IWMovieProviderSource::movieFetched, this, &WMovieProvider::onMovieFetched);
    connect(m_source, &IWMovieProviderSource::movieFetchFailed, this, &WMovieProvider::onMovieFetchFailed);
}

WMovieProvider::~WMovieProvider() = default;

QMovie *WMovieProvider::movie() const
{
    return m_movie;
}

void WMovieProvider::setMovie(QMovie *movie)
{
    if (movie == m_movie)
        return;
    m_movie = movie;
    Q_EMIT movieChanged();
}

void WMovieProvider::fetch(const QString &source)
{
    m_requestedSource = source;
    if (m_source)
        m_source->fetch(source);
}

void WMovieProvider::onMovieFetched(WMovie *movie, const QString &source)
{
    if (source != m_requestedSource || !movie)
        return;
    const QPointer<QMovie> previous = m_movie;
    m_movie = movie;
    movie->setParent(this);
    Q_EMIT movieChanged();
    showPage(1);
    if (previous && previous != movie) // the same movie may be delivered twice
        previous->deleteLater();
}

void WMovieProvider::onMovieFetchFailed(const QString &fallbackSource, const QString &source)
{
    if (source != m_requestedSource)
        return;
    if (fallbackSource.isEmpty()) {
        qWarning() << "image download failed and empty fallbackImage source";
        return;
    }
    m_fallbackSource = fallbackSource;
    Q_EMIT fallbackSourceChanged();
    showPage(2);
}

void WMovieProvider::showPage(int stackIndex)
{
    m_stackIndex = stackIndex;
    Q_EMIT stackIndexChanged(); // also for the page that is shown already: its content is new
}
