// The simulator without windows.

#include "app/program.hpp"

#include <QCoreApplication>

int main(int Argument_Count, char** Arguments) {
    using namespace brinewright;
    return Run_Main(Argument_Count, Arguments, "brinewright-headless", [&](const Program_Options& Chosen) {
        const QCoreApplication Loop(Argument_Count, Arguments);
        return Run_Program(Chosen, {});
    });
}
