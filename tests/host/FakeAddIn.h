#pragma once

// What the fake add-in and its test agree on.
namespace host::test
{

constexpr wchar_t kFakeProgId[] = L"CorvaneHostTest.FakeAddIn";
constexpr wchar_t kFakeClass[] = L"{6B1D5C0E-2E0F-4C55-8E0B-6B3C6F9B7A21}";

} // namespace host::test
