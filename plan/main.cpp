#include "plan/PlanApp.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> args(argv + (argc > 0 ? 1 : 0), argv + (argc > 0 ? argc : 0));
    return CPlanApp::Run(args, std::cout, std::cerr);
}
