// Writes as many characters over an array as it is told to, with the stack protector of the
// program.
#include <windows.h>

#include <cstdlib>

__attribute__((noinline)) static int Fill(int count) {
  volatile char text[16] = "";
  for (int i = 0; i < count; ++i) const_cast<char*>(text)[i] = 'x';
  return text[count % 16];
}

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR arguments, int) {
  return Fill(std::atoi(arguments)) == 'x' ? 7 : 8;
}
