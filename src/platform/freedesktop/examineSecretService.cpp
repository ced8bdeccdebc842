// SPDX-License-Identifier: MIT
#include "platform/freedesktop/examineSecretService.h"

#include <libsecret/secret.h>

using namespace Qt::StringLiterals;

Finding examineSecretService()
{
    const QString subject = u"Keyring"_s;
    const QString meanwhile = u"; until then the credential is kept in memory and each start is a new device"_s;
    g_autoptr(GError) error = nullptr;
    g_autoptr(SecretService) service = secret_service_get_sync(SECRET_SERVICE_NONE, nullptr, &error);
    g_autoptr(SecretCollection) collection =
        service == nullptr ? nullptr
                           : secret_collection_for_alias_sync(service, SECRET_COLLECTION_DEFAULT,
                                                              SECRET_COLLECTION_NONE, nullptr, &error);
    if (error != nullptr) {
        return {subject, Finding::Level::Note, u"absent: no Secret Service on the session bus"_s,
                u"install and start GNOME Keyring, KWallet or KeePassXC"_s + meanwhile};
    }
    if (collection == nullptr) {
        return {subject, Finding::Level::Note, u"there, without a default keyring"_s,
                u"it is made when Quillo first stores its credential"_s};
    }
    if (secret_collection_get_locked(collection) == TRUE) {
        return {subject, Finding::Level::Note, u"locked"_s, u"unlock the login keyring"_s + meanwhile};
    }
    return {subject, Finding::Level::Good, u"usable"_s};
}
