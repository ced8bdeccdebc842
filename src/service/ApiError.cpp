// SPDX-License-Identifier: MIT
#include "service/ApiError.h"

using namespace Qt::StringLiterals;

ApiError ApiError::notConfigured()
{
    return {u"not_configured"_s, u"The service is unavailable right now. Please try again later."_s, 0};
}

ApiError ApiError::network()
{
    return {u"network"_s, u"Network error. Please check your connection."_s, 0};
}

ApiError ApiError::server(int status)
{
    return {u"server_error"_s, u"Something went wrong. Please try again."_s, status};
}
