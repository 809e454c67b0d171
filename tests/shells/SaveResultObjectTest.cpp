// The result that macros read.
#include "addin/CSaveResult.h"
#include "shared/SaveResult.h"

#include <gtest/gtest.h>

using namespace corvane;

namespace
{

TEST(SaveResultObject, TellsEachIdOfTheTarget)
{
    LastSave().Begin();
    LastSave().Save({L"http://server", {1, 2, 3, 4, 5}, L"", L""});
    LastSave().End();
    const auto object = MakeObject<corvane::CSaveResult>();
    LONG expected = 0;
    for (const auto id : {&_CSaveResult::get_ProjectID, &_CSaveResult::get_DeliverableID, &_CSaveResult::get_ActivityID,
                          &_CSaveResult::get_RelatedDocumentID, &_CSaveResult::get_GateDocumentID})
    {
        LONG told = 0;
        EXPECT_EQ(((*object.Get()).*id)(&told), S_OK);
        EXPECT_EQ(told, ++expected);
    }
}

} // namespace
