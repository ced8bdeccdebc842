// SPDX-License-Identifier: MIT
#pragma once

class Accessibility;
class Clock;
class Files;
class HotKeys;
class KeyEvents;
class KeyMonitors;
class Microphone;
class PackagedInfo;
class Pasteboard;
class Preferences;
class Screens;
class SecretStore;
class StatusPanels;
class Workspace;

/// The services of one desktop, chosen once at start. Whoever makes it keeps them alive.
struct Platform {
    Accessibility &accessibility;
    Clock &clock;
    Files &files;
    HotKeys &hotKeys;
    KeyEvents &keyEvents;
    KeyMonitors &keyMonitors;
    Microphone &microphone;
    PackagedInfo &packagedInfo;
    Pasteboard &pasteboard;
    Preferences &preferences;
    Screens &screens;
    SecretStore &secrets;
    StatusPanels &statusPanels;
    Workspace &workspace;
};
