# The flags that every target of Scriptelle shares.
add_library(scriptelle_flags INTERFACE)
target_compile_options(scriptelle_flags INTERFACE -Wall -Wextra -Wpedantic -Werror)
target_compile_definitions(scriptelle_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(SCRIPTELLE_ASAN)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# A faster linker, which writes no Windows programs, and a compiler cache where the machine has them.
find_program(MOLD mold)
if(MOLD AND NOT WIN32 AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_link_options(-fuse-ld=mold)
endif()
find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# The headers that nearly every file reads, compiled once. A test borrows what its support library compiled.
set(SCRIPTELLE_PCH
    <QByteArray> <QDate> <QHash> <QList> <QObject> <QString> <QStringList> <QVariant>
    <algorithm> <functional> <memory> <optional>)
