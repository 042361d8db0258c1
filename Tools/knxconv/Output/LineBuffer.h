#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace Knxconv {

// A line written over a string's own bytes, which the string keeps from line
// to line: std::string's append is a call per piece, and a trace writes
// dozens of pieces per telegram.
class LineBuffer {
 public:
  // Starts an empty line in line.
  explicit LineBuffer(std::string& line) : m_line(line) { m_line.resize(std::max(m_line.capacity(), MinimumSize)); }

  void Put(std::string_view piece) {
    Reserve(piece.size());
    piece.copy(&m_line[m_size], piece.size());
    m_size += piece.size();
  }
  void Put(char c) {
    Reserve(1);
    m_line[m_size++] = c;
  }
  void PutBlanks(std::size_t count) {
    Reserve(count);
    std::fill_n(m_line.begin() + static_cast<std::ptrdiff_t>(m_size), count, ' ');
    m_size += count;
  }
  // Drops the blanks at the end of the line.
  void TrimEnd() {
    while (m_size > 0 && m_line[m_size - 1] == ' ') {
      --m_size;
    }
  }
  // Cuts the string to what was written; writing may go on after.
  void Finish() { m_line.resize(m_size); }

 private:
  static constexpr std::size_t MinimumSize = 256;

  void Reserve(std::size_t count) {
    if (m_size + count > m_line.size()) {
      m_line.resize(std::max(m_size + count, 2 * m_line.size()));
    }
  }

  std::string& m_line;
  std::size_t m_size = 0;
};

}  // namespace Knxconv
