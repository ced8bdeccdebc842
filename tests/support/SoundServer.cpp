// SPDX-License-Identifier: MIT
#include "support/SoundServer.h"

#include <QDir>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

// Without norewinds the first sound of a new stream comes more than a second late.
const auto loadOutput = u"module-null-sink sink_name=vmic rate=48000 channels=2 norewinds=1"_s;
const auto loadMicrophone = u"module-remap-source master=vmic.monitor source_name=mic"_s;

} // namespace

SoundServer::SoundServer(Devices devices) : m_devices(devices)
{
    start();
}

SoundServer::~SoundServer()
{
    kill();
}

QString SoundServer::runtimeFolder() const
{
    return m_folder.filePath(u"run"_s);
}

QString SoundServer::address() const
{
    return u"unix:"_s + runtimeFolder() + u"/pulse/native"_s;
}

QProcessEnvironment SoundServer::environment() const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, m_folder.path());
    environment.insert(u"XDG_CONFIG_HOME"_s, m_folder.filePath(u"config"_s));
    environment.insert(u"XDG_RUNTIME_DIR"_s, runtimeFolder());
    environment.insert(u"PULSE_RUNTIME_PATH"_s, runtimeFolder() + u"/pulse"_s);
    environment.insert(u"PULSE_SERVER"_s, address());
    environment.remove(u"PULSE_COOKIE"_s);
    return environment;
}

void SoundServer::start()
{
    QDir().mkpath(runtimeFolder());
    QFile::setPermissions(runtimeFolder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    auto own = environment();
    own.remove(u"PULSE_SERVER"_s);
    own.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    QStringList arguments{u"-n"_s,
                          u"--daemonize=no"_s,
                          u"--exit-idle-time=-1"_s,
                          u"--use-pid-file=no"_s,
                          u"--realtime=no"_s,
                          u"--high-priority=no"_s,
                          u"--log-level=info"_s,
                          u"--log-target=stderr"_s,
                          u"-L"_s,
                          u"module-native-protocol-unix"_s};
    if (m_devices != Devices::None) {
        arguments << u"-L"_s << loadOutput;
    }
    if (m_devices == Devices::Microphone) {
        arguments << u"-L"_s << loadMicrophone;
    }
    m_process = std::make_unique<ChildProcess>(u"pulseaudio"_s, arguments, own);
    m_process->process().setReadChannel(QProcess::StandardError);
    while (!m_process->readLine().contains("Daemon startup complete"_L1)) {
    }
    m_process->process().closeReadChannel(QProcess::StandardError); // or a full pipe would stop the server some day
}

std::unique_ptr<ChildProcess> SoundServer::play(const QString &rawFile, int rate) const
{
    const QStringList arguments{
        u"--raw"_s, u"--format=s16le"_s, u"--channels=1"_s, u"--rate=%1"_s.arg(rate), u"--device=vmic"_s, rawFile};
    return std::make_unique<ChildProcess>(u"paplay"_s, arguments, environment());
}

QByteArray SoundServer::control(const QStringList &arguments) const
{
    return run(u"pactl"_s, arguments, environment());
}

void SoundServer::addOutput() const
{
    control(u"load-module "_s.append(loadOutput).split(u' '));
}

void SoundServer::addMicrophone() const
{
    control(u"load-module "_s.append(loadMicrophone).split(u' '));
}

void SoundServer::removeMicrophone() const
{
    control({u"unload-module"_s, u"module-remap-source"_s});
}

void SoundServer::kill()
{
    m_process->process().kill();
    m_process->process().waitForFinished();
}

void SoundServer::freeze()
{
    signal(SIGSTOP);
}

void SoundServer::thaw()
{
    signal(SIGCONT);
}

void SoundServer::signal(int number)
{
    ::kill(pid_t(m_process->pid()), number);
}
