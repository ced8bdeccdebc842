// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Finding.h"

/// Whether the desktop's Secret Service can keep the credential. Blocks until it has answered; asks for no password.
Finding examineSecretService();
