// Stands in for the default browser on the rig: adds what it was started with, as one line,
// to the file "links.txt" in the temporary folder.
#include <windows.h>

#include <fstream>
#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR arguments, int) {
  char folder[MAX_PATH] = "";
  GetEnvironmentVariableA("TEMP", folder, MAX_PATH);
  std::ofstream links(std::string(folder) + "\\links.txt", std::ios::app | std::ios::binary);
  links << '<' << arguments << ">\n";
  return 0;
}
