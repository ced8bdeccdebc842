// SPDX-License-Identifier: MIT
#include "e2e/Browser.h"

#include "support/Await.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

void write(const QString &path, const QString &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content.toUtf8()) < 0) {
        throw std::runtime_error(path.toStdString() + " can't be written");
    }
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

Browser::Browser(const Session &session)
    : m_profile(session.path(u"browser"_s)), m_driver(u"chromedriver"_s, {u"--port=0"_s}, session.environment())
{
    const QString program = session.path(u"browse"_s);
    // It is started by the desktop, not by this process: the time limit ends it when nobody else does.
    write(program, u"#!/bin/sh\n"
                   "exec timeout 120 chromium --headless=new --no-sandbox --disable-gpu --no-first-run "
                   "--no-proxy-server --remote-debugging-port=0 \"--user-data-dir=%1\" \"$@\" >/dev/null 2>&1\n"_s.arg(
                       m_profile));
    write(session.dataFolder() + u"/applications/browse.desktop"_s,
          u"[Desktop Entry]\nType=Application\nName=Browser\nExec=%1 %u\n"
          "MimeType=x-scheme-handler/http;x-scheme-handler/https;\n"_s.arg(program));
    write(session.configFolder() + u"/mimeapps.list"_s,
          u"[Default Applications]\nx-scheme-handler/http=browse.desktop\nx-scheme-handler/https=browse.desktop\n"_s);
    static const QRegularExpression started(u"successfully on port (\\d+)"_s);
    QRegularExpressionMatch match;
    while (!match.hasMatch()) {
        match = started.match(m_driver.readLine());
    }
    m_url = u"http://127.0.0.1:%1/session"_s.arg(match.captured(1));
}

Browser::~Browser()
{
    try {
        if (!m_session.isEmpty()) {
            call(u"/goog/cdp/execute"_s, {{u"cmd"_s, u"Browser.close"_s}, {u"params"_s, QJsonObject()}});
        }
    } catch (const std::runtime_error &) {
        // Its own time limit ends it.
    }
}

void Browser::awaitOpened()
{
    const QString place = m_profile + u"/DevToolsActivePort"_s; // port and path, in two lines
    QByteArrayList lines;
    const bool isOpen = await([&] {
        QFile file(place);
        lines = file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QByteArrayList();
        return lines.size() > 1;
    });
    if (!isOpen) {
        throw std::runtime_error("nothing opened the browser");
    }
    const QJsonObject running{{u"debuggerAddress"_s, QString(u"127.0.0.1:"_s + QString::fromLatin1(lines[0]))}};
    const QJsonObject options{{u"alwaysMatch"_s, QJsonObject{{u"goog:chromeOptions"_s, running}}}};
    m_session = u'/' + call({}, {{u"capabilities"_s, options}})[u"sessionId"_s].toString();
}

QString Browser::address()
{
    return script(u"return document.location.href"_s).toString();
}

QString Browser::text()
{
    return script(u"return document.body.innerText"_s).toString();
}

void Browser::click(const QString &selector)
{
    const QJsonObject element =
        call(u"/element"_s, {{u"using"_s, u"css selector"_s}, {u"value"_s, selector}}).toObject();
    call(u"/element/%1/click"_s.arg(element.begin().value().toString()), {});
}

QJsonValue Browser::script(const QString &code)
{
    return call(u"/execute/sync"_s, {{u"script"_s, code}, {u"args"_s, QJsonArray()}});
}

QJsonValue Browser::call(const QString &path, const QJsonObject &body)
{
    const QByteArray reply = run(
        u"curl"_s,
        {u"--silent"_s, u"--fail-with-body"_s, u"--noproxy"_s, u"*"_s, u"--json"_s, u"@-"_s, m_url + m_session + path},
        QProcessEnvironment::systemEnvironment(), QJsonDocument(body).toJson());
    return QJsonDocument::fromJson(reply).object()[u"value"_s];
}
