#include <cstdio>

#include <kelvane/kelvane.h>

int main(int argc, char** argv) {
  if (argc <= 1) {
    std::puts("Usage: kelvaneConverter inputEMFFile ");
    return 1;
  }
  const int status = ReadFromFile(argv[1]);
  std::printf("%s", status == 0 ? "emf parse successful, new file with .pdf extension created"
                                : "error parsing emf..");
  return status;
}
