// SPDX-License-Identifier: MIT
#include "platform/freedesktop/examineSecretService.h"

#include <libsecret/secret.h>

using namespace Qt::StringLiterals;

Finding examineSecretService()
{
    const QString subject = Finding::tr("Keyring");
    g_autoptr(GError) error = nullptr;
    g_autoptr(SecretService) service = secret_service_get_sync(SECRET_SERVICE_NONE, nullptr, &error);
    g_autoptr(SecretCollection) collection =
        service == nullptr ? nullptr
                           : secret_collection_for_alias_sync(service, SECRET_COLLECTION_DEFAULT,
                                                              SECRET_COLLECTION_NONE, nullptr, &error);
    if (error != nullptr) {
        return {
            subject, Finding::Level::Note, Finding::tr("absent: no Secret Service on the session bus"),
            Finding::tr(
                "install and start GNOME Keyring, KWallet or KeePassXC; until then the credential is kept in memory "
                "and each start is a new device")};
    }
    if (collection == nullptr) {
        return {subject, Finding::Level::Note, Finding::tr("there, without a default keyring"),
                Finding::tr("it is made, with a password of yours, when tokens are bought; until then the credential "
                            "is kept in memory and each start is a new device")};
    }
    if (secret_collection_get_locked(collection) == TRUE) {
        return {
            subject, Finding::Level::Note, Finding::tr("locked"),
            Finding::tr("unlock the login keyring; until then the credential is kept in memory and each start is a new "
                        "device")};
    }
    return {subject, Finding::Level::Good, Finding::tr("usable")};
}
