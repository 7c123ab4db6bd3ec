# Run where the packages were installed with what builds programs, and nothing else.
include(${CMAKE_CURRENT_LIST_DIR}/installed_samples.cmake)

set(WORK /tmp/samples)
set(SAMPLES /usr/share/doc/localization-manager/samples)
set(LOCALIZE localize)
set(CXX c++)
set(CC cc)
set(GENERATOR "Unix Makefiles")
set(PYTHON python3)
try_samples()
