#include "toolkit/Timer.h"

#include "toolkit/Form.h"

Timer::Timer(Form& form, UINT_PTR id, UINT milliseconds) : id(id), milliseconds(milliseconds) {
    form.add(*this);
}
