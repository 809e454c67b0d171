// Any key can be read, and the ids of a key that was built come back.
#include "selection/NodeKey.h"
#include "Input.h"

void Fuzz(Input& input)
{
    using namespace corvane;
    const auto mode = static_cast<TreeMode>(input.Number(0, 2));
    constexpr std::int32_t kLargest = 2147483647;
    std::wstring key;
    std::int32_t id = 0;
    for (const TreeLevel& level : TreeKindOf(mode).levels)
        key = NodeKey(key, level, std::to_wstring(id = input.Number(0, kLargest)));
    const auto target = TargetOfKey(mode, key);
    Require(target.has_value());
    const std::int32_t last = mode == TreeMode::Assignment     ? target->activityId
                              : mode == TreeMode::GateDocument ? target->gateDocumentId
                                                               : target->relatedFileId;
    Require(last == id);
    static_cast<void>(TargetOfKey(mode, input.Rest()));
}
