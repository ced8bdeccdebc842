// SPDX-License-Identifier: MIT
#include "service/ApiError.h"

using namespace Qt::StringLiterals;

ApiError ApiError::notConfigured()
{
    return {u"not_configured"_s, tr("The service is unavailable right now. Please try again later."), 0};
}

ApiError ApiError::network()
{
    return {u"network"_s, tr("Network error. Please check your connection."), 0};
}

ApiError ApiError::server(int status)
{
    return {u"server_error"_s, tr("Something went wrong. Please try again."), status};
}
