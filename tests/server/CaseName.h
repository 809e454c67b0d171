#pragma once

#include <gtest/gtest.h>
#include <string>

namespace server
{

// Names an instance of a parameterised test after its case.
struct CaseName
{
    template<class Case>
    std::string operator()(const testing::TestParamInfo<Case>& instance) const
    {
        return instance.param.name;
    }
};

} // namespace server
