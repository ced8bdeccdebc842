// SPDX-License-Identifier: MIT
#include "app/EngineChoice.h"

#include "engine/PocketSphinxEngine.h"

std::unique_ptr<Engine> makeEngine(const Settings &settings)
{
    switch (settings.engine) {
    case Settings::EngineKind::OpenAi:
        return std::make_unique<OpenAiEngine>(settings.openAi);
    case Settings::EngineKind::Command:
        return std::make_unique<CommandEngine>(settings.command);
    case Settings::EngineKind::Wyoming:
        return std::make_unique<WyomingEngine>(settings.wyoming);
    case Settings::EngineKind::PocketSphinx:
        break;
    }
    return std::make_unique<PocketSphinxEngine>(PocketSphinxEngine::defaultModelFolder());
}
