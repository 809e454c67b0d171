// A value that was set is found under its key in any letter case.
#include "support/CustomNameTable.h"
#include "Input.h"
#include "support/Conversions.h"

void Fuzz(Input& input)
{
    corvane::CustomNameTable table;
    for (int entries = input.Number(0, 20); entries > 0; --entries) {
        const std::wstring key = input.Text();
        const std::wstring value = input.Text();
        table.Set(key, value);
        const std::size_t size = table.Size();
        Require(table.Find(corvane::ToLower(key)) == value && table.Item(key) == value && table.Size() == size);
    }
    const std::wstring unknown = input.Rest();
    const std::wstring found = table.Find(unknown);
    Require(table.Item(unknown) == found);
}
