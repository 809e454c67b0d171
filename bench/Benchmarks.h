// The benchmarks, each run in a process of its own with the words after its name.
#pragma once

#include <string>
#include <vector>

namespace bench
{

using Words = std::vector<std::wstring>;

void EncodeText(const Words& words);        // (none)
void TraceScopes(const Words& words);       // (none)
void FillTree(const Words& words);          // add-in|bare NODES
void Upload(const Words& words);            // add-in|bare SERVER FILE
void WaitForAnswer(const Words& words);     // add-in|idle SERVER
void LoadAddIn(const Words& words);         // LIBRARY
void SaveBoundDocument(const Words& words); // LIBRARY SERVER FILE
void ReplayRequests(const Words& words);    // SERVER FOLDER

// Loads what every way of sending needs: the system's XML and HTTP libraries.
void WarmUp();

} // namespace bench
