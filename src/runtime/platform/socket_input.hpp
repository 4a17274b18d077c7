// SocketInput: the bytes a socket has received and its owner not yet read, with the
// reads every socket offers (Read, ReadAll, Lookahead) done one way for all of them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace tessarine {

class SocketInput {
 public:
  std::string_view Unread() const { return std::string_view(bytes_).substr(pos_); }
  std::size_t UnreadSize() const { return bytes_.size() - pos_; }

  std::string Take(std::size_t n) {
    const std::size_t take = std::min(n, UnreadSize());
    std::string out = bytes_.substr(pos_, take);
    pos_ += take;
    if (pos_ == bytes_.size()) Clear();
    return out;
  }

  std::string TakeAll() {
    std::string out;
    if (pos_ == 0)
      out.swap(bytes_);
    else
      out = bytes_.substr(pos_);
    Clear();
    return out;
  }

  // What was read already is dropped before more comes in.
  void Append(std::string_view more) {
    DropRead();
    bytes_.append(more);
  }

  // Room for n more bytes at the end, to receive into without a copy; Commit then
  // keeps the first `used` of them.
  char* Reserve(std::size_t n) {
    DropRead();
    reserved_from_ = bytes_.size();
    bytes_.resize(reserved_from_ + n);
    return bytes_.data() + reserved_from_;
  }
  void Commit(std::size_t used) { bytes_.resize(reserved_from_ + used); }

  void Clear() {
    bytes_.clear();
    pos_ = 0;
  }

 private:
  void DropRead() {
    bytes_.erase(0, pos_);
    pos_ = 0;
  }

  std::string bytes_;
  std::size_t pos_ = 0;
  std::size_t reserved_from_ = 0;
};

}  // namespace tessarine
