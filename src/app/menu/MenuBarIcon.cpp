// SPDX-License-Identifier: MIT
#include "app/menu/MenuBarIcon.h"

#include "app/menu/shortened.h"
#include "app/model/AppModel.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int longestTitle = 20; // in user-perceived characters

QString symbol(AppModel::State::Case state)
{
    switch (state) {
    case AppModel::State::Case::Recording:
        return u"record.circle.fill"_s;
    case AppModel::State::Case::Transcribing:
        return u"ellipsis.circle"_s;
    case AppModel::State::Case::Idle:
        break;
    }
    return u"waveform"_s;
}

} // namespace

MenuBarIcon MenuBarIcon::of(AppModel &model)
{
    const GroupStore &groups = model.groups();
    const auto group = groups.group(groups.activeId());
    return {::symbol(model.state().value), group ? shortened(group->name, longestTitle) : QString()};
}
