// The pictures of the tree's nodes: five of our own and the icon sets of the server.
#pragma once

#include "platform/Owners.h"

#include <windows.h>

#include <commctrl.h>
#include <ocidl.h>

#include <map>
#include <string>

namespace corvane
{

struct ImageListTraits
{
    using Value = HIMAGELIST;
    static constexpr Value kEmpty = nullptr;
    static void Free(Value list) noexcept { ::ImageList_Destroy(list); }
};
using UniqueImageList = Unique<ImageListTraits>;

// An image list whose pictures are found by number (the fixed ones) or by key.
class TreeImages
{
public:
    // Loads the fixed pictures at the size that the screen's resolution asks for; throws Error.
    TreeImages();

    [[nodiscard]] HIMAGELIST Get() const noexcept { return m_list.Get(); }

    // Adds the picture in a file under a key; throws Error when it cannot be read as a picture.
    void AddFile(const std::wstring& key, const std::wstring& path);

    // The index of a keyed picture, of the plain one when the key is unknown; and of a fixed one by its number.
    [[nodiscard]] int IndexOf(const std::wstring& key) const;
    [[nodiscard]] static constexpr int IndexOf(int number) noexcept { return number - 1; }

private:
    int Add(IPicture& picture);
    void AddResource(int id);

    int m_size;
    UniqueImageList m_list;
    std::map<std::wstring, int> m_keys;
};

} // namespace corvane
