# What identifies the system everywhere. The version is that of project(); everything else that the outside sees is
# here. packaging/ makes the desktop entry, the metainfo, the man pages and the changelogs from it.

# The reverse domain name of the desktop entry, the icons, the metainfo and the window.
set(ZERIMO_ID io.github.zerimo_logo.Zerimo)
set(ZERIMO_HOMEPAGE https://zerimo-logo.github.io)
set(ZERIMO_MIME_TYPE text/x-zerimo)
set(ZERIMO_MAINTAINER_NAME "The Zerimo developers")
set(ZERIMO_MAINTAINER_ADDRESS zerimo@zerimo-logo.github.io)

# The day of the release of this version, in seconds since 1970: 2026-11-20.
set(ZERIMO_RELEASE_SECONDS 1795132800)

set(ENV{SOURCE_DATE_EPOCH} ${ZERIMO_RELEASE_SECONDS})
string(TIMESTAMP ZERIMO_RELEASE_DATE "%Y-%m-%d" UTC)
string(TIMESTAMP ZERIMO_RELEASE_MAIL_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
unset(ENV{SOURCE_DATE_EPOCH})

# Where the samples and help pages of an installed system are, and how a program finds them from its own folder.
include(GNUInstallDirs)
set(ZERIMO_SHARE_DIR ${CMAKE_INSTALL_DATADIR}/zerimo)
file(RELATIVE_PATH ZERIMO_SHARE_FOLDER ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DATADIR}/zerimo)
