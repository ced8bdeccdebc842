# SPDX-License-Identifier: MIT
# Headers that most files include are parsed once for all targets that name the same set. Each file still includes what
# it uses: tools/lint compiles them without these sets.

# quillo_precompiled_headers(NAME HEADERS headers… LINKS targets…)
# Declares a set. GCC takes it only where its flags are those of the target that uses it.
function(quillo_precompiled_headers name)
    cmake_parse_arguments(arg "" "" "HEADERS;LINKS" ${ARGN})
    file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE quillo_options ${arg_LINKS})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
endfunction()

set(core_headers
    <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QFile> <QHash> <QJsonArray> <QJsonDocument> <QJsonObject>
    <QList> <QMap> <QObject> <QPointer> <QScopeGuard> <QStandardPaths> <QString> <QStringList> <QTimer> <QUrl> <QUuid>
    <QVariantMap>
    <algorithm> <array> <chrono> <functional> <map> <memory> <mutex> <optional> <span> <stdexcept> <string> <utility>
    <variant> <vector>)

if(QUILLO_BUILD_PROGRAM)
    list(APPEND core_headers <QCoroFuture> <QCoroTask>)
    quillo_precompiled_headers(quillo_core_headers HEADERS ${core_headers} LINKS Qt6::Core QCoro6::Core)
    quillo_precompiled_headers(quillo_view_headers
        HEADERS
            ${core_headers}
            <QAbstractListModel> <QDBusConnection> <QDBusMessage> <QDBusPendingReply> <QFont> <QGuiApplication> <QIcon>
            <QQmlEngine> <QQuickItem> <QQuickView> <QScreen> <QWindow>
            <QtQml/qqmlprivate.h> <QtQml/qqmlregistration.h>
        LINKS Qt6::Core QCoro6::Core Qt6::DBus Qt6::Gui Qt6::Qml Qt6::Quick)
endif()

if(QUILLO_BUILD_TESTS)
    quillo_precompiled_headers(quillo_test_headers
        HEADERS
            ${core_headers}
            <QDeadlineTimer> <QProcess> <QProcessEnvironment> <QRegularExpression> <QTemporaryDir>
            <gmock/gmock.h> <gtest/gtest.h>
        LINKS Qt6::Core GTest::gmock $<TARGET_NAME_IF_EXISTS:QCoro6::Core>)
endif()
