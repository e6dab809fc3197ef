// The constellation dialog: mode field, names and talker of GNS.

#include "tests/support/sentence_bench.hpp"

#include "gnss/configuration/frm_gnss.hpp"

namespace brinewright {
namespace {

struct Dialog_Bench : Sentence_Bench {
    frmGNSS& Configure(int Slot = 1) {
        Sim.Windows.Event([&] { Click(Open_One<frmPosition>(Sim, Slot)->cmdGNSS); });
        return *Open_One<frmGNSS>(Sim, Slot);
    }
    void Use(frmGNSS& F, std::size_t System, int Mode) {
        if (!F.Systems[System].chkUse.Value()) Click(F.Systems[System].chkUse);
        Sim.Windows.User_Set(F.Systems[System].cmbMode, std::int64_t{Mode});
    }
    void Press(Button& B) {
        Sim.Windows.Event([&] { Click(B); });
    }
    std::string GNS(int Slot = 1) {
        const std::string Text = Tick(*Open_One<frmPosition>(Sim, Slot), "GNS");
        const std::size_t Mode = Text.find("E,") + 2; // behind the position
        return Text.substr(1, 2) + " " + Text.substr(Mode, Text.find(',', Mode) - Mode);
    }
};

std::string Shown(const frmGNSS& F) {
    return *F.lblGNSModeIndicator.Caption + " " + *F.lblGNSS_Config.Caption + " " + *F.lblGNSTalker.Caption;
}

TEST(GNSS_Configuration, Letters_Names_And_Talker_Follow_The_Choice) {
    Dialog_Bench Bench;
    Bench.Open<frmPosition>();
    frmGNSS& F = Bench.Configure();
    const auto Drop = [&](std::size_t System) { Bench.Click(F.Systems[System].chkUse); };
    Bench.Use(F, 2, 1);
    EXPECT_EQ(Shown(F), "ANA GPS-Galileo GN");
    Drop(2);
    Bench.Use(F, 1, 1);
    EXPECT_EQ(Shown(F), "AA GPS-GLONASS GN");
    Drop(0);
    Bench.Use(F, 1, 2);
    EXPECT_EQ(Shown(F), "ND GLONASS GL");
    Drop(1);
    EXPECT_EQ(F.Systems[1].cmbMode.List_Index(), 0);
    EXPECT_THROW(Bench.Sim.Windows.User_Click(F.Systems[1].cmbMode), User_Refusal);
    EXPECT_EQ(Shown(F), "N  GN");
    Bench.Use(F, 0, 1);
    Bench.Use(F, 5, 1);
    EXPECT_EQ(Shown(F), "ANNNNA GPS-NavIC(IRNSS) GN");
    Drop(0);
    EXPECT_EQ(Shown(F), "NNNNNA NavIC(IRNSS) GI");
    const char* const Talkers[] = {"GP", "GL", "GA", "GB", "GQ", "GI"};
    Drop(5);
    for (std::size_t I = 0; I < 6; ++I) {
        Bench.Use(F, I, 8);
        EXPECT_EQ(*F.lblGNSTalker.Caption, Talkers[I]);
        EXPECT_EQ(*F.lblGNSModeIndicator.Caption, std::string(I, 'N') + "S");
        Drop(I);
    }
}

TEST(GNSS_Configuration, OK_Reaches_The_Next_GNS_And_Cancel_Nothing) {
    Dialog_Bench Bench;
    Bench.Open<frmPosition>();
    Bench.Open<frmPosition>(2);
    frmGNSS& F = Bench.Configure();
    Bench.Use(F, 3, 4);
    EXPECT_EQ(Bench.GNS(), "GP A") << "nothing before OK";
    Bench.Press(F.cmdCancel);
    EXPECT_FALSE(Open_One<frmGNSS>(Bench.Sim, 1));
    EXPECT_EQ(Bench.GNS(), "GP A");

    frmGNSS& Again = Bench.Configure();
    EXPECT_EQ(Shown(Again), "A GPS GP");
    Bench.Use(Again, 3, 4);
    Bench.Configure(2); // a second dialog takes the slot over
    Bench.Press(Again.cmdOK);
    EXPECT_EQ(Bench.GNS(), "GN ANNR");
    EXPECT_EQ(Bench.GNS(2), "GP A");
    EXPECT_EQ(*Open_One<frmPosition>(Bench.Sim, 1)->lblGNS_ModeIndicator.Caption, "ANNR");
    EXPECT_EQ(*Open_One<frmPosition>(Bench.Sim, 1)->lblGNSS.Caption, "GPS-BDS");
    EXPECT_EQ(*Open_One<frmPosition>(Bench.Sim, 1)->lblGNS_Talker.Caption, "GN");
    EXPECT_TRUE(Bench.GNSS().GNSS_System_Used[4][1]);
    EXPECT_EQ(Bench.GNSS().GNSS_System_Mode[4][1], 4);
    EXPECT_EQ(Shown(Bench.Configure()), "ANNR GPS-BDS GN");
}

TEST(GNSS_Configuration, Survives_Stored_Garbage_And_A_Window_That_Closes) {
    Dialog_Bench Bench;
    Bench.GNSS().GNSS_System_Mode[2][1] = 99;
    Bench.GNSS().GNSS_System_Mode[3][1] = -1;
    Bench.GNSS().GNSS_System_Used[4][1] = true;
    Bench.Open<frmPosition>();
    frmGNSS& F = Bench.Configure();
    EXPECT_EQ(Shown(F), "ANNN GPS-BDS GN");
    Bench.Close(*Open_One<frmPosition>(Bench.Sim, 1));
    Bench.Press(F.cmdOK);
    EXPECT_EQ(Bench.GNSS().GNS_Mode_Indicator[1], "ANNN");
    EXPECT_EQ(*Bench.Open<frmPosition>().lblGNS_ModeIndicator.Caption, "ANNN");
    EXPECT_EQ(Bench.Last_Box(), "");
}

} // namespace
} // namespace brinewright
