// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// `bytes` bytes of the operating system's random source as base64url without padding: letters, digits, "-" and "_".
QByteArray randomToken(int bytes);

/// SHA-256, the only form in which a secret is stored. The secrets are random and long, so no salt or stretching is
/// due.
QByteArray hashOfSecret(const QByteArray &secret);

/// Compares in a time that depends on the lengths only.
bool equalInConstantTime(const QByteArray &left, const QByteArray &right);
