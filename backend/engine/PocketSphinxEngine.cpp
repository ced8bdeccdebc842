// SPDX-License-Identifier: MIT
#include "engine/PocketSphinxEngine.h"

#include "audio/AudioDecoder.h"

#include <QFile>
#include <pocketsphinx.h>
#include <sphinxbase/err.h>

#include <utility>

void PocketSphinxEngine::ConfigurationDeleter::operator()(cmd_ln_s *configuration) const
{
    cmd_ln_free_r(configuration);
}

void PocketSphinxEngine::DecoderDeleter::operator()(ps_decoder_s *decoder) const
{
    ps_free(decoder);
}

PocketSphinxEngine::PocketSphinxEngine(QString modelFolder) : m_modelFolder(std::move(modelFolder)) {}

QString PocketSphinxEngine::defaultModelFolder()
{
    return QStringLiteral(POCKETSPHINX_MODEL_FOLDER "/en-us");
}

void PocketSphinxEngine::prepare()
{
    // The log would hold every word that is recognised.
    err_set_logfp(nullptr);
    const auto folder = QFile::encodeName(m_modelFolder);
    const QByteArray acousticModel = folder + "/en-us";
    const QByteArray languageModel = folder + "/en-us.lm.bin";
    const QByteArray dictionary = folder + "/cmudict-en-us.dict";
    m_configuration.reset(cmd_ln_init(nullptr, ps_args(), TRUE, "-hmm", acousticModel.constData(), "-lm",
                                      languageModel.constData(), "-dict", dictionary.constData(),
                                      // A second pass that costs time and corrects little.
                                      "-fwdflat", "no", nullptr));
    if (m_configuration) {
        m_decoder.reset(ps_init(m_configuration.get()));
    }
    if (!m_decoder) {
        throw EngineError("the PocketSphinx model in " + folder.toStdString() + " could not be loaded");
    }
}

QString PocketSphinxEngine::transcribe(const Recording &recording)
{
    if (!m_decoder) {
        throw EngineError("the PocketSphinx model is not loaded");
    }
    constexpr int searchNow = FALSE;
    constexpr int wholeUtterance = TRUE;
    const auto samples = decodeAudio(recording.file, {recording.longest});
    if (ps_start_utt(m_decoder.get()) < 0) {
        throw EngineError("PocketSphinx did not start");
    }
    const auto processed = ps_process_raw(m_decoder.get(), samples.data(), samples.size(), searchNow, wholeUtterance);
    if (ps_end_utt(m_decoder.get()) < 0 || processed < 0) {
        throw EngineError("PocketSphinx failed");
    }
    return QString::fromUtf8(ps_get_hyp(m_decoder.get(), nullptr));
}
