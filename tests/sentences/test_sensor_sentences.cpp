#include "sensors/log/log_state.hpp"
#include "sentences/compose_att.hpp"
#include "sentences/compose_dbt.hpp"
#include "sentences/compose_dpt.hpp"
#include "sentences/compose_hdt.hpp"
#include "sentences/compose_mwd.hpp"
#include "sentences/compose_mwv.hpp"
#include "sentences/compose_prdid.hpp"
#include "sentences/compose_rot.hpp"
#include "sentences/compose_ths.hpp"
#include "sentences/compose_vbw.hpp"
#include "sentences/compose_vdr.hpp"
#include "sentences/compose_vhw.hpp"
#include "sentences/compose_vlw.hpp"

#include <gtest/gtest.h>

#include <limits>

using namespace brinewright;

namespace {

constexpr float Infinite = std::numeric_limits<float>::infinity();
constexpr float No_Number = std::numeric_limits<float>::quiet_NaN();
constexpr float Largest = std::numeric_limits<float>::max();

// A log that sends VLW every ten seconds.
struct Ten_Seconds {
    Log_State Counters;
    VLW_Record Record;

    Ten_Seconds() { Counters.Log_VLW_Seconds = {{10, 10}}; }
    std::string Send(float Water_kn, float Ground_kn, std::int16_t Log = 1) {
        return Compose_VLW({Counters.Log_VLW_Seconds[Log], Counters.Log_Total_Water[Log],
                            Counters.Log_Trip_Water[Log], Counters.Log_Total_Ground[Log],
                            Counters.Log_Trip_Ground[Log]},
                           {Water_kn, Ground_kn}, Record, true);
    }
};

} // namespace

TEST(Sensor_Sentences, Att_Keeps_Two_Characters_For_The_Talker) {
    EXPECT_EQ(Compose_ATT({"GPS", 1, 2, 3}, true), "$PFEC,GPatt,001.0,002.0,003.0");
    EXPECT_EQ(Compose_ATT({"G", 1, 2, 3}, true), "$PFEC,G att,001.0,002.0,003.0");
}

TEST(Sensor_Sentences, Values_That_Are_No_Numbers_Are_Sent_As_0) {
    EXPECT_EQ(Compose_HDT({"HE", No_Number}, 3, true), "$HEHDT,000.000,T");
    EXPECT_EQ(Compose_ROT({"HE", -Infinite, 'V'}, -32768, true), "$HEROT,000.0,V");
    EXPECT_EQ(Compose_ATT({"HE", Infinite, No_Number, 1}, true), "$PFEC,HEatt,000.0,000.0,001.0");
    EXPECT_EQ(Compose_DPT({"SD", Infinite, No_Number, 400}, true), "$SDDPT,0.0,0.0,400.0");
    EXPECT_EQ(Compose_MWV({"WI", No_Number, 'T', Infinite, 'M', 'A'}, true), "$WIMWV,000.0,T,000.0,M,A");
}

TEST(Compose_VLW, Each_Sentence_Advances_The_Counters_Of_Its_Log_Only) {
    Ten_Seconds Log;
    Log.Counters.Log_Trip_Water[1] = 5; // the trip is reset apart from the total
    EXPECT_EQ(Log.Send(12, 36), "$VWVLW,0.0333,N,5.03,N,0.1000,N,0.1,N,");
    EXPECT_EQ(Log.Send(12, 36), "$VWVLW,0.0667,N,5.07,N,0.2000,N,0.2,N,");
    EXPECT_EQ(Log.Record.Trip_Water, Log.Counters.Log_Trip_Water[1]);
    EXPECT_EQ(Log.Counters.Log_Total_Water[2], 0);
    EXPECT_EQ(Log.Counters.Log_Trip_Ground[2], 0);
    EXPECT_EQ(Log.Send(36, -72, 2), "$VWVLW,0.1000,N,0.1,N,-0.2000,N,-0.2,N,");
    EXPECT_EQ(Log.Send(-12, -36), "$VWVLW,0.0333,N,5.03,N,0.1000,N,0.1,N,"); // astern they go back
    Log.Counters.Log_VLW_Seconds[1] = 5;
    EXPECT_EQ(Log.Send(36, 72), "$VWVLW,0.0833,N,5.08,N,0.2000,N,0.2,N,");
}

// In 32 bits a counter that has grown large takes small steps no more, and rounds at every one.
TEST(Compose_VLW, Counts_In_32_Bits) {
    Ten_Seconds Log;
    for (int Sentence = 0; Sentence < 20'000; ++Sentence) Log.Send(12, 7.2f);
    // Sums of 20,000 steps, each rounded to 32 bits; exactly they were 666.6667 and 400.
    EXPECT_EQ(Log.Counters.Log_Total_Water[1], 666.59216f);
    EXPECT_EQ(Log.Counters.Log_Total_Ground[1], 399.93875f);
    Log.Counters.Log_Total_Water[1] = 16'777'216;
    Log.Send(12, 0);
    EXPECT_EQ(Log.Counters.Log_Total_Water[1], 16'777'216);
}

TEST(Compose_VLW, No_Speed_Makes_A_Counter_Unusable) {
    Ten_Seconds Log;
    Log.Send(36, 36);
    for (const float Speed_kn : {Infinite, -Infinite, No_Number, Largest, -Largest}) {
        EXPECT_EQ(Log.Send(Speed_kn, 0), "$VWVLW,0.1000,N,0.1,N,0.1000,N,0.1,N,") << Speed_kn;
        EXPECT_EQ(Log.Send(0, Speed_kn), "$VWVLW,0.1000,N,0.1,N,0.1000,N,0.1,N,") << Speed_kn;
    }
    // A counter at the end of its range stays there and can be driven back.
    Log.Counters.Log_Total_Water[1] = Largest;
    Log.Send(Largest / 20, 0);
    EXPECT_EQ(Log.Counters.Log_Total_Water[1], Largest);
    EXPECT_THROW(Log.Send(1, 1, 3), Run_Time_Error);
}
