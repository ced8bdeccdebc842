// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Engine.h"

#include <memory>

struct cmd_ln_s;
struct ps_decoder_s;

/// The embedded engine: CMU PocketSphinx with its US English model. It works without a network, at about half the
/// speech's duration on one core, and gets about one word in four wrong.
class PocketSphinxEngine : public Engine {
public:
    /// `modelFolder` holds "en-us", "en-us.lm.bin" and "cmudict-en-us.dict".
    explicit PocketSphinxEngine(QString modelFolder);

    /// The folder of the model that was installed with the library.
    static QString defaultModelFolder();

    int concurrency() const override { return 1; }
    void prepare() override;
    QString transcribe(const Recording &recording) override;

private:
    struct ConfigurationDeleter {
        void operator()(cmd_ln_s *configuration) const;
    };
    struct DecoderDeleter {
        void operator()(ps_decoder_s *decoder) const;
    };

    QString m_modelFolder;
    std::unique_ptr<cmd_ln_s, ConfigurationDeleter> m_configuration;
    std::unique_ptr<ps_decoder_s, DecoderDeleter> m_decoder;
};
