#include "shell/arrange/window_layouts.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/sources/frm_sources.hpp"
#include "tests/support/virtual_simulator.hpp"

#include <cmath>

namespace brinewright {
namespace {

constexpr float Twip = 15; // of a pixel

Extent Pixels(float Width, float Height) { return {Width * Twip, Height * Twip}; }

TEST(Places, Of_Windows_Lie_Beside_Each_Other_In_The_Room) {
    const struct {
        const char* What;
        std::vector<Extent> Sizes;
        bool Keep_Their_Sizes;
    } Cases[] = {
        {"one", {Pixels(640, 480)}, true},
        {"small ones beside a large one",
         {Pixels(300, 200), Pixels(900, 640), Pixels(300, 200), Pixels(300, 200)},
         true},
        {"ten small ones", std::vector<Extent>(10, Pixels(260, 160)), true},
        {"fourteen large ones", std::vector<Extent>(14, Pixels(800, 600)), false},
    };
    const Extent Room = Pixels(1366, 680);
    for (const auto& C : Cases) {
        const std::vector<Window_Place> Places = Beside_Each_Other(C.Sizes, Room);
        ASSERT_EQ(Places.size(), C.Sizes.size()) << C.What;
        for (std::size_t I = 0; I < Places.size(); ++I) {
            const Window_Place& P = Places[I];
            EXPECT_EQ(P.Width == C.Sizes[I].Width, C.Keep_Their_Sizes) << C.What << I;
            EXPECT_LE(P.Left + P.Width, Room.Width) << C.What << I;
            EXPECT_LE(P.Top + P.Height, Room.Height) << C.What << I;
            for (std::size_t J = 0; J < I; ++J) {
                const Window_Place& Q = Places[J];
                EXPECT_TRUE(P.Left >= Q.Left + Q.Width || Q.Left >= P.Left + P.Width ||
                            P.Top >= Q.Top + Q.Height || Q.Top >= P.Top + P.Height)
                    << C.What << I << J;
            }
        }
    }
}

struct Arranging : testing::Test, Virtual_Simulator {
    void SetUp() override {
        Simulator_State Setup = Default_Setup();
        Setup.Of<Link_State>().Comport_Count = 1;
        Start(Setup);
    }
};

TEST_F(Arranging, A_Layout_Of_Ones_Own_Comes_Back_And_The_Others_Go_On_Minimised) {
    Open_Form(form_index::Gyro_1);
    Open_Form(form_index::Log_1);
    Form& Gyro = *Open_Form_Of_Index(Sim, form_index::Gyro_1);
    Gyro.Set_Place(1005, 510, 3015, 2040);
    EXPECT_NE(Save_Layout(Sim, "Bench"), ""); // those of the program stay
    EXPECT_NE(Save_Layout(Sim, "  "), "");
    EXPECT_EQ(Save_Layout(Sim, " Watch "), "");
    EXPECT_EQ(All_Layouts(Sim).back().Name, "Watch");

    Choose_Menu("mnuViewLayout", 3); // all sensors
    for (std::int16_t I = 1; I <= form_index::Wind_1 + 1; ++I) {
        ASSERT_TRUE(Open_Form_Of_Index(Sim, I)) << I;
        EXPECT_TRUE(Open_Form_Of_Index(Sim, I)->Small) << I;
    }
    // Where the room has another size a layout takes the same share of it.
    Sim.Windows.Room_Width *= 2;
    Choose_Menu("mnuViewLayout", Fitted_Layouts + 1);
    EXPECT_FALSE(Gyro.Small);
    EXPECT_EQ(Gyro.Left, 2010);
    EXPECT_EQ(Gyro.Width, 6030);
    EXPECT_EQ(Gyro.Height, 2040);
    EXPECT_EQ(Open_Form_Of_Index(Sim, form_index::Wind_1)->State, Window_State::Minimised);
    EXPECT_EQ(Delete_Layout(Sim, "Watch"), "");
    EXPECT_NE(Delete_Layout(Sim, "Watch"), "");
}

TEST_F(Arranging, How_A_Window_Stood_Comes_Back_With_It) {
    Open_Form(form_index::Gyro_1);
    Open_Form_Of_Index(Sim, form_index::Gyro_1)->Set_Small(true);
    Open_Form_Of_Index(Sim, form_index::Gyro_1)->Set_State(Window_State::Minimised);
    Choose_Menu("mnuWindowCloseAll");
    EXPECT_EQ(Open_Form_Of_Index(Sim, form_index::Gyro_1), nullptr);
    Open_Form(form_index::Gyro_1);
    EXPECT_TRUE(Open_Form_Of_Index(Sim, form_index::Gyro_1)->Small);
    // Chosen once more it is to be seen.
    Open_Form(form_index::Gyro_1);
    EXPECT_EQ(Open_Form_Of_Index(Sim, form_index::Gyro_1)->State, Window_State::Normal);
}

TEST_F(Arranging, A_Source_That_Is_Silenced_Sends_Nothing) {
    Choose_Menu("mnuViewSources");
    auto* const Sources = Open_One<frmSources>(Sim);
    ASSERT_TRUE(Sources);
    EXPECT_EQ(*Sources->lblState[form_index::Gyro_1].Caption, "window closed");
    Use({port_number::First_UDP});
    Link().Sensor_Table[form_index::Gyro_1].Port = port_number::First_UDP;
    Click(Sources->chkSends[form_index::Gyro_1]); // opens it
    auto* const Gyro = static_cast<Sensor_Form*>(Open_Form_Of_Index(Sim, form_index::Gyro_1));
    ASSERT_TRUE(Gyro);
    Click(Gyro->Sentences["HDT"].Box);
    const auto Sent_In_Seconds = [&](double Seconds) {
        Sim.Last_Sentence[form_index::Gyro_1].clear();
        Run_s(Seconds);
        return !Sim.Last_Sentence[form_index::Gyro_1].empty();
    };
    EXPECT_TRUE(Sent_In_Seconds(3));
    Click(Sources->chkSends[form_index::Gyro_1]);
    EXPECT_EQ(*Sources->lblState[form_index::Gyro_1].Caption, "silenced");
    EXPECT_FALSE(Sent_In_Seconds(3));
    Click(Sources->chkSends[form_index::Gyro_1]);
    EXPECT_TRUE(Sent_In_Seconds(3));
    // Chosen once more the list goes; it comes back by itself only when it stood at the end.
    Choose_Menu("mnuViewSources");
    EXPECT_FALSE(Open_One<frmSources>(Sim));
    EXPECT_EQ(Settings.Get("Open frmSources", ""), "0");
}

} // namespace
} // namespace brinewright
