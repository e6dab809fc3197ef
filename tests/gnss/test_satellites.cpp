// The sky, and what GSA and GSV tell of it.

#include "tests/support/sentence_bench.hpp"

#include <cmath>
#include <limits>
#include <sstream>

namespace brinewright {
namespace {

TEST(GNSS_Sky, Starts_Inside_Its_Ranges) {
    Sentence_Bench Bench;
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
    Sentence_Bench Bench;
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

TEST(GNSS_Satellites, GSV_Is_A_Series_With_Whole_Numbers_From_Below) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>();
    auto& Sky = Bench.GNSS().Sky_Table;
    for (const std::int16_t I : Bench.GNSS().Svs_In_Use)
        if (I != 0) {
            Sky[I].Elevation = static_cast<float>(I) + 0.99F;
            Sky[I].Azimuth = 100.5F + static_cast<float>(I);
            Sky[I].SNR = -0.5F;
        }
    Bench.Tick(W, "GSV");
    ASSERT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Sent[0].Text, Framed("GPGSV,2,1,8,3,3,103,-1,6,6,106,-1,8,8,108,-1,12,12,112,-1"));
    EXPECT_EQ(Bench.Sent[1].Text, Framed("GPGSV,2,2,8,19,19,119,-1,24,24,124,-1,25,25,125,-1,32,32,132,-1"));
    Sky[3].SNR = 1e9F;
    Sky[6].SNR = -std::numeric_limits<float>::infinity();
    Sky[8].SNR = std::numeric_limits<float>::quiet_NaN();
    Bench.Tick(W, "GSV");
    EXPECT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Last_Box(), "");
}

TEST(GNSS_Satellites, GSV_Lists_Those_In_Use_Then_Those_In_View_Then_Nothing) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>();
    Bench.Choose(W.cmbInView, 13);
    Bench.GNSS().Svs_In_View[2] = 33;
    Bench.GNSS().Svs_In_View[3] = 88;
    Bench.GNSS().Svs_In_View[4] = Bench.GNSS().Svs_In_View[5] = 0;
    Bench.IEC450().IEC450_Enabled = Bench.IEC450().Use_g_Tag = true;
    Bench.Tick(W, "GSV");
    ASSERT_EQ(Bench.Sent.size(), 4U);
    std::string Numbers;
    for (std::size_t M = 0; M < 4; ++M) {
        const std::string& Text = Bench.Sent[M].Text;
        const std::string Group = "g:" + std::to_string(M + 1) + "-4-1";
        EXPECT_EQ(Text.substr(1, Group.size()), Group);
        const auto F = Fields_Of(Text.substr(Text.find('$')));
        EXPECT_EQ(F[1] + F[2] + F[3], "4" + std::to_string(M + 1) + "13");
        for (std::size_t K = 0; K < 4; ++K) Numbers += (F.size() > 4 + 4 * K ? F[4 + 4 * K] : "") + " ";
    }
    EXPECT_EQ(Numbers, "3 6 8 12 19 24 25 32 1 120 88 " + std::string(5, ' '));
    EXPECT_TRUE(Bench.Sent[3].Text.find("$GPGSV,4,4,13,,,,,,,,,,,,,,,,*") != std::string::npos)
        << Bench.Sent[3].Text;
    EXPECT_EQ(Fields_Of(Bench.Sent[2].Text.substr(Bench.Sent[2].Text.find('$')))[16], "");

    Bench.Choose(W.cmbSats, 0);
    Bench.Tick(W, "GSV");
    EXPECT_TRUE(Bench.Sent.empty());
    Bench.Choose(W.cmbInView, 1);
    Bench.Tick(W, "GSV");
    ASSERT_EQ(Bench.Sent.size(), 1U);
    EXPECT_EQ(Bench.Sent[0].Text.front(), '*') << "a sentence alone has no group";
}

TEST(GNSS_Satellites, An_Identifier_Without_A_Satellite_Goes_Out_Empty) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>();
    Bench.GNSS().Svs_In_Use[1] = -5;
    Bench.GNSS().Svs_In_Use[2] = 89;
    Bench.Tick(W, "GSV");
    ASSERT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Sent[0].Text.substr(0, 23), "$GPGSV,2,1,8,,,,,,,,,8,");
    Bench.Sim.Windows.Event([&] { W.timer_GSVUpdate.Tick(); });
    EXPECT_EQ(Bench.Last_Box(), "");
}

TEST(GNSS_Satellite_Controls, The_Table_Rounds_And_Follows_The_Sky_Once_A_Minute) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>();
    Bench.Choose(W.cmbInView, 9);
    for (const int I : {1, 3}) {
        Sky_Satellite& S = Bench.GNSS().Sky_Table[I];
        S.Elevation = 62.5F;
        S.Azimuth = 7.25F;
        S.SNR = -0.25F;
    }
    EXPECT_EQ(W.hfgGSV.At(0, 1).Text, "00");
    W.timer_GSVUpdate.Set_Interval(60'000);
    Main_Window(Bench.Sim).timer_Sky.Set_Interval(0); // keep the values
    Bench.Run_s(60);
    const auto Row = [&](int R) {
        return W.hfgGSV.At(R, 1).Text + " " + W.hfgGSV.At(R, 2).Text + " " + W.hfgGSV.At(R, 3).Text;
    };
    EXPECT_EQ(Row(0), "62 007 00") << "in use: to the even integer first";
    EXPECT_EQ(Row(8), "63 007 -00") << "in view: the value itself in the pattern";
}

TEST(GNSS_Satellite_Controls, Both_Windows_Share_One_Sky) {
    Sentence_Bench Bench;
    frmPosition& First = Bench.Open<frmPosition>();
    frmPosition& Second = Bench.Open<frmPosition>(2);
    Bench.Click(Second.chkSv[3]);
    Bench.Click(Second.chkGLSv[2]);
    EXPECT_FALSE(Bench.GNSS().Sky_Table[3].Used);
    EXPECT_TRUE(First.chkSv[3].Value()) << "the boxes of the other window stay";
    EXPECT_EQ(First.GSA_Record.PRN[1], 3);
    for (frmPosition* W : {&First, &Second}) {
        Bench.Tick(*W, "GSV");
        EXPECT_EQ(Bench.Sent.at(0).Text.substr(0, 15), "$GPGSV,2,1,8,6,");
        EXPECT_NE(Bench.Sent.at(1).Text.find(",66,"), std::string::npos);
    }
    Bench.Choose(First.cmbInView, 9);
    EXPECT_EQ(Bench.GNSS().Svs_In_View[3], 3) << "free by the other window's choice";
}

} // namespace
} // namespace brinewright
