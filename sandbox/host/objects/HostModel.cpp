#include "objects/HostModel.h"

namespace host
{
namespace
{
constexpr int kAddingVersion = 12;
} // namespace

std::span<const Member> ClassTable::Members(int version) const
{
    return version >= kAddingVersion ? members : members.first(members.size() - added);
}

const HostModel& ModelOf(HostKind kind)
{
    switch (kind) {
    case HostKind::Word:
        return WordModel();
    case HostKind::Excel:
        return ExcelModel();
    case HostKind::Outlook:
        return OutlookModel();
    case HostKind::PowerPoint:
        break;
    }
    return PowerPointModel();
}

} // namespace host
