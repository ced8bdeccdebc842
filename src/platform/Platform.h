// SPDX-License-Identifier: MIT
#pragma once

class Accessibility;
class Application;
class Clock;
class Files;
class HotKeys;
class KeyEvents;
class KeyMonitors;
class LoginItem;
class Microphone;
class PackagedInfo;
class Pasteboard;
class Preferences;
class Screens;
class SecretStore;
class StatusItem;
class StatusPanels;
class Workspace;

/// The services of one desktop, chosen once at start. Whoever makes it keeps them alive. Each is an interface although
/// a desktop has one of it: another desktop has its own, and a test puts a fake in its place.
struct Platform {
    Accessibility &accessibility;
    Application &application;
    Clock &clock;
    Files &files;
    HotKeys &hotKeys;
    KeyEvents &keyEvents;
    KeyMonitors &keyMonitors;
    LoginItem &loginItem;
    Microphone &microphone;
    PackagedInfo &packagedInfo;
    Pasteboard &pasteboard;
    Preferences &preferences;
    Screens &screens;
    SecretStore &secrets;
    StatusItem &statusItem;
    StatusPanels &statusPanels;
    Workspace &workspace;
};
