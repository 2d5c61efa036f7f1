#include <kelvane/kelvane.h>
