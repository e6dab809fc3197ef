// The sky, and what GSA and GSV tell of it.

#include "gnss_bench.hpp"

#include <cmath>
#include <limits>
#include <sstream>

namespace brinewright {
namespace {

std::vector<std::string> Fields(const std::string& Sentence) {
    std::vector<std::string> Found;
    std::istringstream Rest(Sentence.substr(0, Sentence.find('*')));
    for (std::string Field; std::getline(Rest, Field, ',');) Found.push_back(Field);
    return Found;
}

void Tick_GSV(GNSS_Bench& Bench, frmPosition& W) {
    Bench.Sent.clear();
    Bench.Sim.Windows.Event([&] { W.Sentences["GSV"].Clock.Tick(); });
}

TEST(GNSS_Sky, Starts_Inside_Its_Ranges) {
    GNSS_Bench Bench;
    Bench.Sim.Services.Random.Seed(3);
    int Rising = 0, Increasing = 0, Same = 0;
    float Lowest_SNR = 1e9F, Highest_SNR = 0;
    for (int Round = 0; Round < 50; ++Round) {
        Init_Sky(Bench.Sim);
        for (const Sky_Satellite& S : Bench.GNSS().Sky_Table) {
            EXPECT_TRUE(S.Max_Elevation >= 20 && S.Max_Elevation <= 90) << S.Max_Elevation;
            EXPECT_TRUE(S.Elevation >= 5 && S.Elevation <= static_cast<float>(S.Max_Elevation))
                << S.Elevation;
            EXPECT_TRUE(S.Azimuth >= 0 && S.Azimuth < 359) << S.Azimuth;
            EXPECT_EQ(S.SNR, std::floor(S.SNR));
            Lowest_SNR = std::min(Lowest_SNR, S.SNR);
            Highest_SNR = std::max(Highest_SNR, S.SNR);
            Rising += S.Rising;
            Increasing += S.Az_Increasing;
            Same += S.Rising == S.Az_Increasing;
        }
    }
    EXPECT_EQ(Lowest_SNR, 5);
    EXPECT_EQ(Highest_SNR, 29);
    for (const int Half : {Rising, Increasing, Same})
        EXPECT_NEAR(Half, 2200, 170); // five standard deviations
}

TEST(GNSS_Sky, Drifts_In_Small_Steps_And_Turns_At_Its_Bounds) {
    GNSS_Bench Bench;
    Init_Sky(Bench.Sim);
    auto& Sky = Bench.GNSS().Sky_Table;
    double Largest_deg = 0, Largest_SNR = 0;
    for (int Step = 0; Step < 20'000; ++Step) {
        const auto Before = Sky;
        timer_Sky_Tick(Bench.Sim);
        for (int I = 1; I <= 88; ++I) {
            const double Rise_deg = Sky[I].Elevation - Before[I].Elevation;
            EXPECT_TRUE(Before[I].Rising ? Rise_deg >= 0 : Rise_deg <= 0);
            EXPECT_TRUE(Sky[I].Elevation > 4.89F &&
                        Sky[I].Elevation < static_cast<float>(Sky[I].Max_Elevation) + 0.11F);
            if (Sky[I].Rising != Before[I].Rising) {
                EXPECT_TRUE(Before[I].Rising ? Sky[I].Elevation > Sky[I].Max_Elevation
                                             : Sky[I].Elevation < 5);
            }
            EXPECT_EQ(Sky[I].Az_Increasing, Before[I].Az_Increasing);
            EXPECT_TRUE(Sky[I].Azimuth >= 0 && Sky[I].Azimuth <= 360);
            const double Turn_deg = Sky[I].Azimuth - Before[I].Azimuth;
            if (std::abs(Turn_deg) < 180) {
                EXPECT_TRUE(Before[I].Az_Increasing ? Turn_deg >= 0 : Turn_deg <= 0);
            }
            if (Turn_deg > 180) {
                EXPECT_EQ(Sky[I].Azimuth, 359.9F);
            }
            if (Turn_deg < -180) {
                EXPECT_EQ(Sky[I].Azimuth, 0);
            }
            Largest_deg = std::max(Largest_deg, std::abs(Rise_deg));
            Largest_SNR = std::max(Largest_SNR, std::abs(static_cast<double>(Sky[I].SNR) - Before[I].SNR));
        }
        if (HasFailure()) return;
    }
    EXPECT_NEAR(Largest_deg, 0.1, 1e-3);
    EXPECT_NEAR(Largest_SNR, 0.5, 1e-3);
    float Lowest = 1e9F, Highest = -1e9F;
    for (const Sky_Satellite& S : Sky) {
        Lowest = std::min(Lowest, S.SNR);
        Highest = std::max(Highest, S.SNR);
    }
    EXPECT_LT(Lowest, 5) << "the random walk of the SNR has no bounds";
    EXPECT_GT(Highest, 30);
}

TEST(GNSS_Satellites, Opening_Puts_The_Eight_Into_All_Lists) {
    GNSS_Bench Bench;
    Bench.GNSS().Sky_Table[1].Used = Bench.GNSS().Sky_Table[88].Used = true;
    Bench.GNSS().Svs_In_Use[9] = 77;
    const frmPosition& W = Bench.Open();
    const std::vector<int> Eight{3, 6, 8, 12, 19, 24, 25, 32};
    std::vector<int> In_Use, Used, PRN;
    for (const std::int16_t I : Bench.GNSS().Svs_In_Use)
        if (I != 0) In_Use.push_back(I);
    for (int I = 1; I <= 88; ++I)
        if (Bench.GNSS().Sky_Table[I].Used) Used.push_back(I);
    for (const std::int16_t I : W.GSA_Record.PRN)
        if (I != 0) PRN.push_back(I);
    EXPECT_EQ(In_Use, Eight);
    EXPECT_EQ(Used, Eight);
    EXPECT_EQ(PRN, Eight);
    EXPECT_EQ(W.GGA_Record.Sats, 8);
    EXPECT_EQ(W.GNS_Record.Sats, 8);
    EXPECT_EQ(W.GSV_Record.In_View, 8);
}

TEST(GNSS_Satellites, GSV_Is_A_Series_With_Whole_Numbers_From_Below) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    auto& Sky = Bench.GNSS().Sky_Table;
    for (const std::int16_t I : Bench.GNSS().Svs_In_Use)
        if (I != 0) {
            Sky[I].Elevation = static_cast<float>(I) + 0.99F;
            Sky[I].Azimuth = 100.5F + static_cast<float>(I);
            Sky[I].SNR = -0.5F;
        }
    Tick_GSV(Bench, W);
    ASSERT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Sent[0].Text, Framed("GPGSV,2,1,8,3,3,103,-1,6,6,106,-1,8,8,108,-1,12,12,112,-1"));
    EXPECT_EQ(Bench.Sent[1].Text, Framed("GPGSV,2,2,8,19,19,119,-1,24,24,124,-1,25,25,125,-1,32,32,132,-1"));
    Sky[3].SNR = 1e9F;
    Sky[6].SNR = -std::numeric_limits<float>::infinity();
    Sky[8].SNR = std::numeric_limits<float>::quiet_NaN();
    Tick_GSV(Bench, W);
    EXPECT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Last_Box(), "");
}

TEST(GNSS_Satellites, GSV_Lists_Those_In_Use_Then_Those_In_View_Then_Nothing) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    auto& State = Bench.Sim.State;
    W.cmbInView.Set_List_Index(13);
    State.Of<GNSS_State>().Svs_In_View[2] = 33;
    State.Of<GNSS_State>().Svs_In_View[3] = 88;
    State.Of<GNSS_State>().Svs_In_View[4] = State.Of<GNSS_State>().Svs_In_View[5] = 0;
    State.Of<IEC450_State>().IEC450_Enabled = State.Of<IEC450_State>().Use_g_Tag = true;
    Tick_GSV(Bench, W);
    ASSERT_EQ(Bench.Sent.size(), 4U);
    std::string Numbers;
    for (std::size_t M = 0; M < 4; ++M) {
        const std::string& Text = Bench.Sent[M].Text;
        const std::string Group = "g:" + std::to_string(M + 1) + "-4-1";
        EXPECT_EQ(Text.substr(1, Group.size()), Group);
        const auto F = Fields(Text.substr(Text.find('$')) + ",");
        EXPECT_EQ(F[1] + F[2] + F[3], "4" + std::to_string(M + 1) + "13");
        for (std::size_t K = 0; K < 4; ++K) Numbers += (F.size() > 4 + 4 * K ? F[4 + 4 * K] : "") + " ";
    }
    EXPECT_EQ(Numbers, "3 6 8 12 19 24 25 32 1 120 88 " + std::string(5, ' '));
    EXPECT_TRUE(Bench.Sent[3].Text.find("$GPGSV,4,4,13,,,,,,,,,,,,,,,,*") != std::string::npos)
        << Bench.Sent[3].Text;
    EXPECT_EQ(Fields(Bench.Sent[2].Text.substr(Bench.Sent[2].Text.find('$')) + ",")[16], "");

    W.cmbSats.Set_List_Index(0);
    Tick_GSV(Bench, W);
    EXPECT_TRUE(Bench.Sent.empty());
    W.cmbInView.Set_List_Index(1);
    Tick_GSV(Bench, W);
    ASSERT_EQ(Bench.Sent.size(), 1U);
    EXPECT_EQ(Bench.Sent[0].Text.front(), '*') << "a sentence alone has no group";
}

TEST(GNSS_Satellites, An_Identifier_Without_A_Satellite_Goes_Out_Empty) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    Bench.GNSS().Svs_In_Use[1] = -5;
    Bench.GNSS().Svs_In_Use[2] = 89;
    Tick_GSV(Bench, W);
    ASSERT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Sent[0].Text.substr(0, 23), "$GPGSV,2,1,8,,,,,,,,,8,");
    Bench.Sim.Windows.Event([&] { W.timer_GSVUpdate.Tick(); });
    EXPECT_EQ(Bench.Last_Box(), "");
}

} // namespace
} // namespace brinewright
