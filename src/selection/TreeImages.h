// The pictures of the tree's nodes: five of our own and the icon sets of the server.
#pragma once

#include "platform/Owners.h"
#include "selection/TreeMode.h"

#include <windows.h>

#include <commctrl.h>
#include <ocidl.h>

#include <map>
#include <string>

namespace corvane
{

// An image list of the add-in's own pictures and of those that have a key.
class TreeImages
{
public:
    // Loads the own pictures at the size that the screen's resolution asks for; throws Error.
    TreeImages();

    [[nodiscard]] HIMAGELIST Get() const noexcept { return m_list.Get(); }

    // Adds the picture in a file under a key; throws Error when it cannot be read as a picture.
    void AddFile(const std::wstring& key, const std::wstring& path);

    // The index of a keyed picture, of the plain one when the key is unknown; and of an own one.
    [[nodiscard]] int IndexOf(const std::wstring& key) const;
    [[nodiscard]] static constexpr int IndexOf(TreePicture picture) noexcept { return static_cast<int>(picture); }

private:
    int Add(IPicture& picture);
    void AddResource(int id);

    int m_size;
    Unique<HIMAGELIST, ::ImageList_Destroy> m_list;
    std::map<std::wstring, int> m_keys;
};

} // namespace corvane
