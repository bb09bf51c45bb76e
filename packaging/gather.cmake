# SPDX-License-Identifier: MIT
# Puts the libraries and plug-ins that the programs of a folder need into it:
#   cmake -DFOLDER=… -DPLUGINS=… -DSOURCES=… -P gather.cmake
# PLUGINS is the toolkit's folder of plug-ins, SOURCES a file to be written: the paths of all that was copied. Left to the
# system is what belongs to its kernel, its graphics driver, its X server or Wayland compositor and its fonts, and what
# gets mended there for safety's sake.
cmake_minimum_required(VERSION 3.25)

set(system ld-linux[^/]* libc libm libdl libpthread librt libresolv libgcc_s libstdc[+][+] libGL libGLX libGLdispatch
    libGLX_[^/]* libEGL libX11 libX11-xcb libxcb libXau libXdmcp libfontconfig libfreetype libharfbuzz libglib-2[.]0
    libwayland-[^/]* libdbus-1 libz libexpat libpng16 libgssapi_krb5 libxkbcommon)
list(JOIN system "|" system)

set(wanted platforms/libqxcb.so platforms/libqoffscreen.so platforms/libqwayland-generic.so
    wayland-shell-integration/libxdg-shell.so wayland-decoration-client/libbradient.so tls/libqopensslbackend.so
    imageformats/libqjpeg.so imageformats/libqgif.so imageformats/libqico.so imageformats/libqwebp.so
    imageformats/libqtiff.so
    platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so)
list(TRANSFORM wanted PREPEND ${PLUGINS}/ OUTPUT_VARIABLE plugins)

set(programs ${FOLDER}/bin/ambrelle)
if(EXISTS ${FOLDER}/lib/ambrelle/ambrelle-update)
    list(APPEND programs ${FOLDER}/lib/ambrelle/ambrelle-update)
endif()

file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${programs} MODULES ${plugins}
    PRE_EXCLUDE_REGEXES "^(${system})[.]so([.].*)?$"
    RESOLVED_DEPENDENCIES_VAR found UNRESOLVED_DEPENDENCIES_VAR missing)
if(missing)
    list(JOIN missing " " missing)
    message(FATAL_ERROR "These libraries are not here: ${missing}")
endif()

# Under the names by which they are looked for, and no links: a file each.
file(MAKE_DIRECTORY ${FOLDER}/lib/ambrelle)
foreach(library IN LISTS found)
    get_filename_component(name ${library} NAME)
    file(REAL_PATH ${library} real)
    file(COPY_FILE ${real} ${FOLDER}/lib/ambrelle/${name})
    file(CHMOD ${FOLDER}/lib/ambrelle/${name} PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    list(APPEND sources ${real})
endforeach()
foreach(plugin IN LISTS wanted)
    get_filename_component(kind ${plugin} DIRECTORY)
    file(COPY ${PLUGINS}/${plugin} DESTINATION ${FOLDER}/lib/ambrelle/plugins/${kind})
    list(APPEND sources ${PLUGINS}/${plugin})
endforeach()

# Whose they are, for credits.py.
list(JOIN sources "\n" sources)
file(WRITE ${SOURCES} "${sources}\n")
