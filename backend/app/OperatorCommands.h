// SPDX-License-Identifier: MIT
#pragma once

#include "app/Settings.h"

// The operator's commands, also while the server runs. Each prints to the standard output stream and throws
// std::exception when it can't be done. The words stand for the capitals of the command's description, in order.

void listDevices(const Settings &settings, const QStringList &words);
void showDevice(const Settings &settings, const QStringList &words);
void grantTokens(const Settings &settings, const QStringList &words);
void unmeterDevice(const Settings &settings, const QStringList &words);
void meterDevice(const Settings &settings, const QStringList &words);
void revokeDevice(const Settings &settings, const QStringList &words);
void showLedger(const Settings &settings, const QStringList &words);
void backUp(const Settings &settings, const QStringList &words);
void restore(const Settings &settings, const QStringList &words);
void checkDatabase(const Settings &settings, const QStringList &words);
void testEngine(const Settings &settings, const QStringList &words);
void checkConfiguration(const Settings &settings, const QStringList &words);
