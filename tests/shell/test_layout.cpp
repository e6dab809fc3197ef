// Every control of every window has its place, and one only.

#include "shell/kit/layout.hpp"
#include "tests/support/all_windows.hpp"

namespace brinewright {
namespace {

struct Layouts : Every_Window, testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Mode, Layouts, testing::Values("Sensor", "Ship"),
                         [](const auto& Info) { return std::string(Info.param); });

TEST_P(Layouts, Place_Every_Control_Once) {
    Start(Full_Setup(GetParam()));
    Open_Every_Window();
    for (const auto& F : Sim.Windows.Forms) {
        const Window_Class* const Class = Find_Class(Sim, F->Name);
        if (F == Sim.Main) continue;
        ASSERT_TRUE(Class && Class->Lay_Out) << F->Path();
        std::map<const Control*, int> Places;
        For_Each_Placed(Class->Lay_Out(Sim, *F), [&](const Visible_Control& C) {
            EXPECT_EQ(&C.Owner, F.get()) << F->Path() << " has " << C.Owner.Path() << "." << C.Path();
            ++Places[&C];
        });
        for (const Control* C : F->Controls)
            if (C->Kind != Control_Kind::Timer && C->Kind != Control_Kind::Menu_Item) {
                EXPECT_EQ(Places[C], 1) << "places of " << F->Path() << "." << C->Path();
            }
    }
}

} // namespace
} // namespace brinewright
