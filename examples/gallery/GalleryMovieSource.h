#pragma once

#include <IWMovieProviderSource.h>

#include <chrono>

/// Draws the movies that the gallery shows, "orbit", "wave" and "pulse", in the colours of the theme at the time. Any
/// other source fails; its fallback image, "image://svg/%1/...", waits for a colour.
class GalleryMovieSource : public IWMovieProviderSource
{
    Q_OBJECT

public:
    /// Answers after the delay, or within fetch() when it is zero. A movie that is not animated has one frame.
    GalleryMovieSource(std::chrono::milliseconds delay, bool animated, QObject *parent);

    void fetch(const QString &source) override;

private:
    void answer(const QString &source);

    std::chrono::milliseconds m_delay;
    bool m_animated;
};
