#include "simulator/common/TestPicture.h"

#include <turbojpeg.h>

namespace simulator {

struct TestPicture::Canvas {};

}  // namespace simulator
