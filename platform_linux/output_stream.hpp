#pragma once

#include "platform_linux/unique_fd.hpp"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

namespace brinewright {

// Texts on their way into a file, a pipe or a terminal, whose reader may be slow or not read at all. A text
// leaves whole or not at all, and nothing here waits unless it is asked to.
class Output_Stream {
  public:
    // How long Write waits for a reader that takes nothing.
    struct Patience {
        int Wait_ms = 0;       // -1: for ever
        int Interrupt_Fd = -1; // readable: no longer
    };

    // An empty File is stdout; any other is emptied. Throws Run_Time_Error. More than Limit_Bytes never wait.
    Output_Stream(const std::string& File, std::size_t Limit_Bytes);

    bool Put(std::string_view Text); // false: it does not fit behind what waits
    // Writes what waits, as far as the reader takes it. Throws Run_Time_Error with the system's text; what
    // waited is lost then.
    void Write(Patience For_Reader);
    void Close(); // throws as Write does: some systems tell only now that the disk is full

    std::size_t Waiting_Bytes() const { return Waiting.size() - Head; }
    std::size_t Waiting_Texts() const { return Lengths.size(); }
    int Fd() const { return File_Fd.Get(); }

  private:
    bool Await(Patience For_Reader) const;
    std::size_t Piece() const;
    void Take_Off(std::size_t Count);
    [[noreturn]] void Fail(int Error_Number);

    Unique_Fd File_Fd;
    std::size_t Limit;
    std::string Waiting;
    std::size_t Head = 0;              // what of Waiting has been written
    std::deque<std::uint32_t> Lengths; // of the texts that wait, of the first what is left of it
};

} // namespace brinewright
