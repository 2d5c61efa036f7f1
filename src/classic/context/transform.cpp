#include "classic/context/transform.h"

namespace kelvane {

XForm CrossMultiply(const XForm& a, const XForm& b) {
  return {a.eM11 * b.eM11 + a.eM12 * b.eM21,       a.eM11 * b.eM12 + a.eM12 * b.eM22,
          a.eM21 * b.eM11 + a.eM22 * b.eM21,       a.eM21 * b.eM12 + a.eM22 * b.eM22,
          a.eDx * b.eM11 + a.eDy * b.eM21 + b.eDx, a.eDx * b.eM12 + a.eDy * b.eM22 + b.eDy};
}

}  // namespace kelvane
