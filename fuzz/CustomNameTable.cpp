// A value that was set is found under its key in any letter case, and no more is kept than is meant to be.
#include "support/CustomNameTable.h"
#include "Input.h"
#include "support/Conversions.h"

void Fuzz(Input& input)
{
    corvane::CustomNameTable table;
    std::vector<corvane::CustomNameRow> rows(static_cast<std::size_t>(input.Number(0, 310)));
    for (int entries = input.Number(0, 20); entries > 0; --entries) {
        const std::wstring key = input.Text();
        const std::wstring value = input.Text();
        table.Set(key, value);
        rows.push_back({key, value});
        const std::size_t size = table.Size();
        Require(table.Find(corvane::ToLower(key)) == value && table.Item(key) == value && table.Size() == size);
    }
    const std::wstring unknown = input.Rest();
    const std::wstring found = table.Find(unknown);
    Require(table.Item(unknown) == found);
    rows.insert(rows.begin(), {unknown, unknown});
    const auto kept = corvane::KeptRows(rows);
    Require(kept.size() <= 300 && (kept.size() == 300 || unknown.size() > 255 || kept.front().token == unknown));
    for (const auto& [token, value] : kept)
        Require(token.size() <= 255 && value.size() <= 1024);
}
