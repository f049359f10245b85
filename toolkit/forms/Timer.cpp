#include "toolkit/forms/Timer.h"

#include "toolkit/forms/Form.h"

Timer::Timer(Form& form, UINT_PTR id, UINT milliseconds) : id(id), milliseconds(milliseconds) {
    form.add(*this);
}
