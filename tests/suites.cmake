# Included by CTest with `folder` and `command`, the test program of that folder: one test for each of its suites.
execute_process(COMMAND ${command} --gtest_list_tests OUTPUT_VARIABLE listing RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    # A program that cannot even list its tests is one failed test.
    add_test("${folder}" ${command} --gtest_list_tests)
endif()
string(REGEX MATCHALL "[^\n]+" lines "${listing}")
foreach(line IN LISTS lines)
    if(line MATCHES "^([A-Za-z0-9_/]+)\\.")
        set(suite "${CMAKE_MATCH_1}")
        add_test("${folder}/${suite}" ${command} "--gtest_filter=${suite}.*")
        set_tests_properties("${folder}/${suite}" PROPERTIES TIMEOUT 900)
        # How memory and time grow is measured long enough to show it: script/check has that time.
        if(suite MATCHES "Growth")
            set_tests_properties("${folder}/${suite}" PROPERTIES LABELS slow)
        endif()
        set(cases 0)
    else()
        # Those with the most cases begin first, so that none is left alone at the end.
        math(EXPR cases "${cases} + 1")
        set_tests_properties("${folder}/${suite}" PROPERTIES COST ${cases})
    endif()
endforeach()
