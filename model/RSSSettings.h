#pragma once

#include <QString>

/// The feed's channel settings, as they are kept on disk. A value.
struct RSSSettings
{
    QString title;
    QString link; ///< the channel's web address, as typed
    QString description;
};
