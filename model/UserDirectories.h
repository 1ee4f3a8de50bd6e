#pragma once

#include <QString>

// The user's well-known folders, from the table that the desktop keeps (user-dirs.dirs of
// freedesktop.org's xdg-user-dirs). Looked up anew at each call.

/// The folder that XDG_DOCUMENTS_DIR names, whether it exists or not; without an entry the home
/// directory: one fixed place, so that a folder made later hides no blog. Empty where there is a
/// table that cannot be read: in another place the blog would be another one.
QString documentsDirectory();

/// The folder that XDG_DESKTOP_DIR names; without an entry ~/Desktop if that is a folder, else the
/// home directory.
QString desktopDirectory();
