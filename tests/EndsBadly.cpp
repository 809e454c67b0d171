// A program that crashes, or that starts another of its kind and never ends.
#include <windows.h>

#include <cstdio>
#include <string>

int main(int, char** words)
{
    int* volatile nowhere = nullptr;
    if (words[1] == std::string{"crash"}) *nowhere = 1;
    std::string other = std::string{words[0]} + " alone";
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (words[1] == std::string{"sleep"})
        ::CreateProcessA(nullptr, other.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process);
    std::puts("asleep");
    std::fflush(stdout);
    ::Sleep(INFINITE);
}
