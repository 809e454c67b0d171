#include "addin/SaveCommand.h"

namespace corvane
{
namespace
{

bool Names(TreeMode tree, const Target& target) noexcept
{
    switch (tree) {
    case TreeMode::Assignment:
        return target.deliverableId > 0 || target.activityId > 0;
    case TreeMode::GateDocument:
        return target.gateDocumentId > 0;
    case TreeMode::RelatedDocument:
        return target.relatedFileId != 0; // whatever its sign
    }
    return false;
}

} // namespace

bool SkipsTree(const SaveCommand& command, const DocumentBinding& binding) noexcept
{
    return !binding.server.empty() && Names(command.tree, binding);
}

bool HasTarget(const SaveCommand& command, const DocumentBinding& binding) noexcept
{
    return SkipsTree(command, binding) || (command.makesTargets && !binding.server.empty() && binding.projectId != 0);
}

Target StartOf(const SaveCommand& command, const DocumentBinding& binding) noexcept
{
    return command.makesTargets ? Target{} : TargetIn(command.tree, binding);
}

} // namespace corvane
