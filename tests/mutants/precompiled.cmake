# What the core includes from outside is read once and not for each mutant, whose compilation takes
# a fraction of the time. Included by project(), before there is a target.
cmake_language(DEFER CALL target_precompile_headers tavlo_core PRIVATE
    <QByteArray>
    <QCoreApplication>
    <QDir>
    <QEventLoopLocker>
    <QFile>
    <QFileInfo>
    <QList>
    <QObject>
    <QSaveFile>
    <QString>
    <QStringDecoder>
    <QUuid>
    <QVariant>
    <simdjson.h>
    <unicode/basictz.h>
    <unicode/smpdtfmt.h>
    <unicode/tztrans.h>
    <unicode/unorm.h>
    <algorithm>
    <array>
    <charconv>
    <chrono>
    <cmath>
    <cstdio>
    <cstdlib>
    <filesystem>
    <functional>
    <map>
    <memory>
    <optional>
    <set>
    <string>
    <string_view>
    <unordered_map>
)
