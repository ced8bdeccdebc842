// SPDX-License-Identifier: MIT
#include "platform/audio/PulseMicrophone.h"

#include "platform/LocalizedError.h"
#include "platform/audio/PulseContext.h"
#include "platform/audio/PulseRecorder.h"
#include "platform/audio/Reconnection.h"

PulseMicrophone::PulseMicrophone(Clock &clock, const QString &server)
    : m_clock(clock),
      m_context(std::make_unique<PulseContext>(server.toLocal8Bit())),
      m_reconnection(
          std::make_unique<Reconnection>(*m_context, clock, Reconnection::socketFolder(server.toLocal8Bit())))
{
    m_context->connectToServer();
}

PulseMicrophone::~PulseMicrophone() = default;

Microphone::Authorization PulseMicrophone::authorizationStatus() const
{
    return m_context->isDenied() ? Authorization::Denied : Authorization::Authorized;
}

QCoro::Task<bool> PulseMicrophone::requestAccess()
{
    co_return authorizationStatus() == Authorization::Authorized;
}

std::unique_ptr<AudioFileRecorder> PulseMicrophone::makeRecorder(const QString &path, const AudioSettings &settings)
{
    if (m_context->connection() == PulseContext::Connection::Ready &&
        m_context->source() == PulseContext::Source::None) {
        throw LocalizedError(LocalizedError::tr("There is no microphone. Plug one in."));
    }
    return std::make_unique<PulseRecorder>(*m_context, m_clock, path, settings);
}
